#include "app/MenuController.h"

namespace ondrilo {

MenuController::MenuController(FrameWindow& frame, MessageBoxes& boxes, CUserProfileSet& profiles,
                               const COnScreenKeyboard& keyboard, SessionController& session,
                               WindowChrome& chrome, Countdowns& countdowns, EventWriter& events,
                               const SessionServices& services)
    : frame(frame), boxes(boxes), profiles(profiles), keyboard(keyboard), session(session), chrome(chrome),
      countdowns(countdowns), events(events), services(services) {
}

void MenuController::Execute(int command) {
    countdowns.context.Stop();
    services.userRecord.MenuSelected(command);
    switch (command) {
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
