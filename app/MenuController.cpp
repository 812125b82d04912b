#include "app/MenuController.h"

namespace ondrilo {

MenuController::MenuController(const Environment& environment, CUserProfileSet& profiles,
                               const CSystemOptions& systemOptions, const COnScreenKeyboard& keyboard,
                               SessionController& session, PredictionCycle& cycle, WindowChrome& chrome,
                               Countdowns& countdowns, EventWriter& events, const SessionServices& services)
    : frame(environment.frame), boxes(environment.boxes), profiles(profiles), systemOptions(systemOptions),
      keyboard(keyboard), session(session), chrome(chrome), countdowns(countdowns), events(events),
      services(services), bulkLearning(environment, profiles), simulators(environment, profiles, cycle) {
}

void MenuController::Execute(int command) {
    countdowns.context.Stop();
    services.userRecord.MenuSelected(command);
    switch (command) {
    case menu::LearnFromFile:
        if (MayChangeSystem())
            bulkLearning.LearnFromFile();
        break;
    case menu::LearnFromClipboard:
        if (MayChangeSystem())
            bulkLearning.LearnFromClipboard();
        break;
    case menu::SimulateWords:
        simulators.SimulateWords();
        break;
    case menu::OpenProfile:
        OpenProfile();
        break;
    case menu::DisableMenu:
        chrome.DisableMenu();
        break;
    case menu::HideMenuAndBars:
        chrome.HideChrome();
        break;
    case menu::Quit:
        frame.Close();
        break;
    default:
        break;
    }
    countdowns.context.Restart();
}

bool MenuController::MayChangeSystem() {
    if (systemOptions.IsOn(system_option::ALTERACOES_SISTEMA))
        return true;
    boxes.Show(
        "As alterações ao sistema estão bloqueadas! Este bloqueio pode ser retirado em Opções Gerais."_w);
    return false;
}

void MenuController::OpenProfile() {
    if (keyboard.IsEditing()) {
        boxes.Show("Por favor termine a edição do teclado de ecrã antes de realizar esta operação."_w);
        return;
    }
    const auto name = profiles.ChooseProfile();
    if (name.empty())
        return;
    if (events.IsOpen())
        events.Event("MENU_OPTION_SELECTION", "USER_PROFILE_LOAD_" + name);
    session.ChangeProfile(name, true);
}

} // namespace ondrilo
