#include "app/MenuController.h"

namespace ondrilo {

MenuController::MenuController(const Environment& environment, const CSystemOptions& systemOptions,
                               const COnScreenKeyboard& keyboard, ProfileController& profiles,
                               VocabularyController& vocabulary, LoggingController& logging,
                               BulkLearningController& bulkLearning,
                               SystemOptionsController& systemOptionsController,
                               SimulatorController& simulators, WindowChrome& chrome, Countdowns& countdowns,
                               const SessionServices& services)
    : frame(environment.frame), boxes(environment.boxes), dialogs(environment.dialogs),
      systemOptions(systemOptions), keyboard(keyboard), profiles(profiles), vocabulary(vocabulary),
      logging(logging), bulkLearning(bulkLearning), systemOptionsController(systemOptionsController),
      simulators(simulators), chrome(chrome), countdowns(countdowns), services(services) {
}

void MenuController::Execute(int number) {
    const auto* command = FindMenuCommand(number);
    // An entry that is chosen twice in a hurry comes again inside the dialog of the first.
    if (!command || running)
        return;
    running = true;
    countdowns.context.Stop();
    services.userRecord.MenuSelected(number);
    if (IsAllowed(*command))
        Run(number);
    countdowns.context.Restart();
    running = false;
}

bool MenuController::IsAllowed(const MenuCommand& command) {
    if (command.guarded && !systemOptions.IsOn(system_option::ALTERACOES_SISTEMA)) {
        boxes.Show(
            "As alterações ao sistema estão bloqueadas! Este bloqueio pode ser retirado em Opções Gerais."_w);
        return false;
    }
    if (command.notInEditing && keyboard.IsEditing()) {
        boxes.Show("Por favor termine a edição do teclado de ecrã antes de realizar esta operação."_w);
        return false;
    }
    return true;
}

void MenuController::Run(int number) {
    switch (number) {
    case menu::DisableMenu:
        return chrome.DisableMenu();
    case menu::HideMenuAndBars:
        return chrome.HideChrome();
    case menu::SystemOptions:
        return systemOptionsController.EditOptions();
    case menu::Quit:
        return frame.Close();
    case menu::NewProfile:
        return profiles.CreateProfile();
    case menu::OpenProfile:
        return profiles.OpenProfile();
    case menu::RemoveProfile:
        return profiles.RemoveProfile();
    case menu::ProfileOptions:
        return profiles.EditOptions();
    case menu::CopyProfileOptions:
        return profiles.CopyOptions();
    case menu::Words:
        return vocabulary.EditWords();
    case menu::Sentences:
        return vocabulary.EditSentences();
    case menu::Abbreviations:
        return vocabulary.EditAbbreviations();
    case menu::LearnFromFile:
        return bulkLearning.LearnFromFile();
    case menu::LearnFromClipboard:
        return bulkLearning.LearnFromClipboard();
    case menu::ViewLog:
        return services.log.ShowViewer();
    case menu::RestartMetrics:
        return logging.Restart();
    case menu::Metrics:
        return logging.ShowMetrics();
    case menu::CopyLogs:
        return profiles.CopyLogs();
    case menu::RemoveLogs:
        return profiles.RemoveLogs();
    case menu::SimulateWords:
        return simulators.SimulateWords();
    case menu::About:
        return dialogs.ShowAbout();
    default: // what the window itself has done
        return;
    }
}

} // namespace ondrilo
