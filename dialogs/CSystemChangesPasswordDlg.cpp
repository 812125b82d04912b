#include "dialogs/CSystemChangesPasswordDlg.h"

#include "platform/qt/QtConversion.h"

#include <QFormLayout>

namespace ondrilo {

CSystemChangesPasswordDlg::CSystemChangesPasswordDlg(const DialogHost& host)
    : BaseDialog(host, DialogNumber::Password, "passwordDialog", tr("Bloquear Alterações ao Sistema")) {
    auto* content = new QWidget;
    auto* form = new QFormLayout(content);
    field->setObjectName("password");
    field->setEchoMode(QLineEdit::Password);
    form->addRow(tr("Introduza a senha:"), field);
    SetContent(content);
}

Text CSystemChangesPasswordDlg::Password() const {
    return FromQString(field->text());
}

} // namespace ondrilo
