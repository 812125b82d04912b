#pragma once

#include "dialogs/BaseDialog.h"

namespace ondrilo {

/// Tells what the program is and under which licence.
class CAboutDlg : public BaseDialog {
    Q_OBJECT

  public:
    explicit CAboutDlg(const DialogHost& host);
};

} // namespace ondrilo
