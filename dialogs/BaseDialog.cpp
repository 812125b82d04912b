#include "dialogs/BaseDialog.h"

#include "platform/qt/FocusReturn.h"

#include <QPushButton>
#include <QScreen>

namespace ondrilo {

BaseDialog::BaseDialog(const DialogHost& host, DialogNumber number, const char* objectName,
                       const QString& title)
    : host(host), number(number) {
    setObjectName(objectName);
    setWindowTitle(title);
    auto* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName("okButton");
    ok->setText(tr("OK"));
    auto* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setObjectName("cancelButton");
    cancel->setText(tr("Cancelar"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { TryAccept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    rows->addWidget(buttons);
}

void BaseDialog::SetContent(QWidget* content) {
    rows->insertWidget(0, content, 1);
}

bool BaseDialog::Run() {
    setMaximumSize(screen()->availableSize());
    host.record.DialogOpened(static_cast<int>(number));
    const bool accepted = RunDialog(*this, host.desktop) == Accepted;
    host.record.DialogClosed(static_cast<int>(number));
    return accepted;
}

} // namespace ondrilo
