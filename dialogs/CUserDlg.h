#pragma once

#include "dialogs/BaseDialog.h"

#include <QListWidget>

#include <vector>

namespace ondrilo {

/// "Seleccionar Perfil de Utilizador": one of the names, typed or from the list.
class CUserDlg : public BaseDialog {
    Q_OBJECT

  public:
    CUserDlg(const DialogHost& host, const std::vector<Text>& names);
    /// What was chosen, once the dialog has ended with OK.
    [[nodiscard]] Text Name() const;

  protected:
    void TryAccept() override;

  private:
    void FollowTyping(const QString& typed);
    void FollowList();

    QLineEdit* field = new QLineEdit;
    QListWidget* list = new QListWidget;
};

} // namespace ondrilo
