#pragma once

#include "app/Countdown.h"
#include "app/SessionController.h"
#include "app/WindowChrome.h"

namespace ondrilo {

/// Entries of the main window's menu, by their numbers.
namespace menu {
inline constexpr int OpenProfile = 32914, DisableMenu = 32947, HideMenuAndBars = 32951, Quit = 57665;
} // namespace menu

/// Runs the commands of the menu. While one runs, the context does not change the profile.
class MenuController {
  public:
    MenuController(FrameWindow& frame, MessageBoxes& boxes, CUserProfileSet& profiles,
                   const COnScreenKeyboard& keyboard, SessionController& session, WindowChrome& chrome,
                   Countdowns& countdowns, EventWriter& events, const SessionServices& services);

    void Execute(int command);

  private:
    void OpenProfile();

    FrameWindow& frame;
    MessageBoxes& boxes;
    CUserProfileSet& profiles;
    const COnScreenKeyboard& keyboard;
    SessionController& session;
    WindowChrome& chrome;
    Countdowns& countdowns;
    EventWriter& events;
    SessionServices services;
};

} // namespace ondrilo
