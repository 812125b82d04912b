#include "dialogs/FileChooser.h"

#include "platform/qt/FocusReturn.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QStandardPaths>

namespace ondrilo {
namespace {

QString StartFolder() {
    const auto documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(documents).exists() ? documents : QDir::homePath();
}

std::optional<std::filesystem::path> Choose(QFileDialog& chooser, Desktop& desktop) {
    chooser.setObjectName("fileChooser");
    chooser.setOption(QFileDialog::DontUseNativeDialog);
    chooser.setDirectory(StartFolder());
    for (auto* columns : chooser.findChildren<QHeaderView*>())
        columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    if (RunDialog(chooser, desktop) != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return std::nullopt;
    return chooser.selectedFiles().front().toStdString();
}

} // namespace

std::optional<std::filesystem::path> AskForFile(Desktop& desktop, const QString& title,
                                                const QString& filter) {
    QFileDialog chooser(nullptr, title, {}, filter);
    chooser.setFileMode(QFileDialog::ExistingFile);
    return Choose(chooser, desktop);
}

std::optional<std::filesystem::path> AskForTextFile(Desktop& desktop) {
    return AskForFile(desktop, QObject::tr("Escolher Ficheiro de Texto"),
                      QObject::tr("Ficheiros de texto (*.txt);;Todos os ficheiros (*)"));
}

std::optional<std::filesystem::path> AskForFolder(Desktop& desktop, const QString& title) {
    QFileDialog chooser(nullptr, title);
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    return Choose(chooser, desktop);
}

} // namespace ondrilo
