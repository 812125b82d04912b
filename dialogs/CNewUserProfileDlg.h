#pragma once

#include "dialogs/BaseDialog.h"

#include <functional>

namespace ondrilo {

/// "Novo Perfil de Utilizador": asks for the name of a profile.
class CNewUserProfileDlg : public BaseDialog {
    Q_OBJECT

  public:
    /// What is wrong with a name; empty if nothing is.
    using Objection = std::function<Text(TextView name)>;

    CNewUserProfileDlg(const DialogHost& host, Objection objection);
    /// Without blanks at its ends.
    [[nodiscard]] Text Name() const;

  protected:
    void TryAccept() override;

  private:
    Objection objection;
    QLineEdit* field = new QLineEdit;
};

} // namespace ondrilo
