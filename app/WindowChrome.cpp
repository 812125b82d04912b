#include "app/WindowChrome.h"

namespace ondrilo {

WindowChrome::WindowChrome(FrameWindow& frame, const CUserProfileSet& profiles)
    : frame(frame), profiles(profiles) {
}

void WindowChrome::OnActivate() {
    if (!firstActivation)
        return;
    firstActivation = false;
    const auto& profile = profiles.Active().properties;
    if (!profile.IsOn(option::MOSTRAR_BARRAS_JANELA))
        HideChrome();
    // Against its name the option holds whether the menu is on.
    if (!profile.IsOn(option::BLOQUEAR_MENU))
        DisableMenu();
}

void WindowChrome::ToggleChrome() {
    ShowAll(!(captionVisible && menuVisible && statusBarVisible));
}

void WindowChrome::DisableMenu() {
    frame.EnableMenu(false);
}

void WindowChrome::BringBackMenu() {
    frame.EnableMenu(true);
    ShowChrome();
}

void WindowChrome::ShowAll(bool visible) {
    ShowCaption(visible);
    ShowMenu(visible);
    ShowStatusBar(visible);
}

void WindowChrome::ShowCaption(bool visible) {
    if (captionVisible != visible)
        frame.ShowCaption(captionVisible = visible);
}

void WindowChrome::ShowMenu(bool visible) {
    if (menuVisible != visible)
        frame.ShowMenu(menuVisible = visible);
}

void WindowChrome::ShowStatusBar(bool visible) {
    if (statusBarVisible != visible)
        frame.ShowStatusBar(statusBarVisible = visible);
}

} // namespace ondrilo
