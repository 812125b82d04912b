#include "dialogs/CAboutDlg.h"

#include <QLabel>
#include <QPushButton>

namespace ondrilo {

CAboutDlg::CAboutDlg(const DialogHost& host)
    : BaseDialog(host, DialogNumber::About, "aboutDialog", tr("Acerca Tessivor")) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    auto* text = new QLabel(tr("<h2>Ondrilo 3.0</h2>"
                               "<p>Comunicação aumentativa e alternativa com teclados de ecrã<br>"
                               "e predição de palavras, frases e pictogramas.</p>"
                               "<p>Software livre, sob a licença GPL, versão 3 ou posterior.</p>"));
    text->setObjectName("aboutText");
    column->addWidget(text);
    SetContent(content);
    delete Buttons().button(QDialogButtonBox::Cancel);
}

} // namespace ondrilo
