#include "dialogs/TextFileChooser.h"

#include "platform/qt/FocusReturn.h"

#include <QFileDialog>
#include <QStandardPaths>

namespace ondrilo {

namespace {

QString StartFolder() {
    const auto documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

} // namespace

std::optional<std::filesystem::path> AskForTextFile(Desktop& desktop, QWidget* parent) {
    QFileDialog chooser(parent, QObject::tr("Escolher Ficheiro de Texto"), StartFolder(),
                        QObject::tr("Ficheiros de texto (*.txt);;Todos os ficheiros (*)"));
    chooser.setObjectName("textFileChooser");
    chooser.setFileMode(QFileDialog::ExistingFile);
    // A chooser of the desktop's own would be a window that nobody here can put in front or give focus to.
    chooser.setOption(QFileDialog::DontUseNativeDialog);
    chooser.setLabelText(QFileDialog::LookIn, QObject::tr("Procurar em:"));
    chooser.setLabelText(QFileDialog::FileName, QObject::tr("&Nome do ficheiro:"));
    chooser.setLabelText(QFileDialog::FileType, QObject::tr("Ficheiros do tipo:"));
    chooser.setLabelText(QFileDialog::Accept, QObject::tr("&Abrir"));
    chooser.setLabelText(QFileDialog::Reject, QObject::tr("Cancelar"));
    if (RunDialog(chooser, desktop) != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return std::nullopt;
    return chooser.selectedFiles().front().toStdString();
}

} // namespace ondrilo
