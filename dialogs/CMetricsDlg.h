#pragma once

#include "dialogs/BaseDialog.h"

#include <QListWidget>

namespace ondrilo {

/// Shows the metrics, a row each. What is selected can be copied; with nothing selected, all of them.
class CMetricsDlg : public BaseDialog {
    Q_OBJECT

  public:
    CMetricsDlg(const DialogHost& host, const std::vector<Text>& lines);

  private:
    void AddCopying();
    void CopyRows() const;

    QListWidget* rows = new QListWidget;
};

} // namespace ondrilo
