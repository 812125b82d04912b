#include "app/ui/QtDialogs.h"

#include "dialogs/CAboutDlg.h"
#include "dialogs/CMetricsDlg.h"
#include "dialogs/CNewUserProfileDlg.h"
#include "dialogs/CSystemChangesPasswordDlg.h"
#include "dialogs/CUserDlg.h"
#include "dialogs/CWordPredictionSimulatorDlg.h"
#include "dialogs/EntryListDlg.h"
#include "dialogs/FileChooser.h"
#include "platform/qt/QtConversion.h"

namespace ondrilo {

std::optional<Text> QtDialogs::ChooseProfile(const std::vector<Text>& names) {
    CUserDlg dialog(host, names);
    return dialog.Run() ? std::optional(dialog.Name()) : std::nullopt;
}

std::optional<Text> QtDialogs::AskProfileName(const std::function<Text(TextView)>& objection) {
    CNewUserProfileDlg dialog(host, objection);
    return dialog.Run() ? std::optional(dialog.Name()) : std::nullopt;
}

std::optional<Text> QtDialogs::AskPassword() {
    CSystemChangesPasswordDlg dialog(host);
    return dialog.Run() ? std::optional(dialog.Password()) : std::nullopt;
}

std::optional<std::filesystem::path> QtDialogs::ChooseTextFile() {
    return AskForTextFile(host.desktop);
}

std::optional<std::filesystem::path> QtDialogs::ChooseFolder(TextView title) {
    return AskForFolder(host.desktop, ToQString(title));
}

bool QtDialogs::EditEntries(EntryList& entries) {
    return EntryListDlg(host, entries).Run();
}

void QtDialogs::SimulateWords(Simulator& simulator) {
    (void)CWordPredictionSimulatorDlg(host, simulator).Run();
}

void QtDialogs::ShowMetrics(const std::vector<Text>& lines) {
    (void)CMetricsDlg(host, lines).Run();
}

void QtDialogs::ShowAbout() {
    (void)CAboutDlg(host).Run();
}

} // namespace ondrilo
