#pragma once

#include "dialogs/BaseDialog.h"

#include <QSpinBox>

namespace ondrilo {

/// "Adicionar Horário": asks for a time span of a day. The end may come before the start.
class CNewTimeSpanDlg : public BaseDialog {
    Q_OBJECT

  public:
    explicit CNewTimeSpanDlg(const DialogHost& host);
    /// "08:30-12:00"
    [[nodiscard]] QString TimeSpan() const;

  private:
    struct Time {
        QSpinBox* hour;
        QSpinBox* minute;
    };
    [[nodiscard]] static Time CreateTime(const QString& name);
    [[nodiscard]] static QWidget* CreateRow(const Time& time);

    Time start, end;
};

} // namespace ondrilo
