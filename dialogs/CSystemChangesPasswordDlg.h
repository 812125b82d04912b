#pragma once

#include "dialogs/BaseDialog.h"

namespace ondrilo {

/// "Bloquear Alterações ao Sistema": asks for the password that turns the lock on and off.
class CSystemChangesPasswordDlg : public BaseDialog {
    Q_OBJECT

  public:
    explicit CSystemChangesPasswordDlg(const DialogHost& host);
    [[nodiscard]] Text Password() const;

  private:
    QLineEdit* field = new QLineEdit;
};

} // namespace ondrilo
