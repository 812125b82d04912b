#include "app/ui/QtDialogs.h"

#include "dialogs/CWordPredictionSimulatorDlg.h"
#include "dialogs/TextFileChooser.h"
#include "platform/qt/FocusReturn.h"
#include "platform/qt/QtConversion.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace ondrilo {

std::optional<Text> QtDialogs::ChooseProfile(const std::vector<Text>& names) {
    QDialog dialog;
    dialog.setObjectName("chooseProfileDialog");
    dialog.setWindowTitle(QObject::tr("Seleccionar Perfil de Utilizador"));
    auto* list = new QListWidget;
    list->setObjectName("profiles");
    list->setAccessibleName(QObject::tr("Perfis de Utilizador"));
    for (const auto& name : names)
        list->addItem(ToQString(name));
    list->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setText(QObject::tr("Cancelar"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(list, &QListWidget::itemDoubleClicked, &dialog, &QDialog::accept);
    auto* rows = new QVBoxLayout(&dialog);
    rows->addWidget(list);
    rows->addWidget(buttons);

    if (RunDialog(dialog, host.desktop) != QDialog::Accepted || list->currentRow() < 0)
        return std::nullopt;
    return names[static_cast<std::size_t>(list->currentRow())];
}

std::optional<std::filesystem::path> QtDialogs::ChooseTextFile() {
    return AskForTextFile(host.desktop);
}

std::optional<Text> QtDialogs::AskProfileName(const std::function<Text(TextView)>&) {
    return std::nullopt;
}

std::optional<Text> QtDialogs::AskPassword() {
    return std::nullopt;
}

std::optional<std::filesystem::path> QtDialogs::ChooseFolder(TextView) {
    return std::nullopt;
}

bool QtDialogs::EditEntries(EntryList&) {
    return false;
}

void QtDialogs::SimulateWords(Simulator& simulator) {
    CWordPredictionSimulatorDlg dialog(simulator, host.desktop);
    RunDialog(dialog, host.desktop);
}

} // namespace ondrilo
