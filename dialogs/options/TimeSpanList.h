#pragma once

#include "dialogs/BaseDialog.h"
#include "dialogs/options/OptionsDraft.h"

#include <QGroupBox>
#include <QListWidget>

namespace ondrilo {

/// The time spans of one weekday, one a row.
class TimeSpanList : public QGroupBox {
    Q_OBJECT

  public:
    TimeSpanList(const QString& day, TextOption option, OptionsDraft& draft, const DialogHost& host);

  private:
    [[nodiscard]] QWidget* CreateButtons(const QString& day);
    void Add();
    void Remove();
    void Store();

    TextOption option;
    OptionsDraft& draft;
    const DialogHost& host;
    QListWidget* list = new QListWidget;
};

} // namespace ondrilo
