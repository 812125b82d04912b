#include "dialogs/CNewUserProfileDlg.h"

#include "platform/qt/QtConversion.h"
#include "text/Splitter.h"

#include <QFormLayout>

#include <utility>

namespace ondrilo {

CNewUserProfileDlg::CNewUserProfileDlg(const DialogHost& host, Objection objection)
    : BaseDialog(host, DialogNumber::NewProfile, "newProfileDialog", tr("Novo Perfil de Utilizador")),
      objection(std::move(objection)) {
    auto* content = new QWidget;
    auto* form = new QFormLayout(content);
    field->setObjectName("profileName");
    form->addRow(tr("Nome do Perfil:"), field);
    SetContent(content);
}

Text CNewUserProfileDlg::Name() const {
    return Text(Trim(FromQString(field->text())));
}

void CNewUserProfileDlg::TryAccept() {
    if (const auto reason = objection(Name()); !reason.empty())
        return Refuse(reason, *field);
    accept();
}

} // namespace ondrilo
