#pragma once

#include "app/BulkLearningController.h"
#include "app/Countdown.h"
#include "app/SessionController.h"
#include "app/SimulatorController.h"
#include "app/WindowChrome.h"
#include "profiles/CSystemOptions.h"

namespace ondrilo {

/// Entries of the main window's menu, by their numbers.
namespace menu {
inline constexpr int LearnFromFile = 32908, LearnFromClipboard = 32909, OpenProfile = 32914,
                     SimulateWords = 32940, DisableMenu = 32947, HideMenuAndBars = 32951, Quit = 57665;
} // namespace menu

/// Runs the commands of the menu. While one runs, the context does not change the profile.
class MenuController {
  public:
    MenuController(const Environment& environment, CUserProfileSet& profiles,
                   const CSystemOptions& systemOptions, const COnScreenKeyboard& keyboard,
                   SessionController& session, PredictionCycle& cycle, WindowChrome& chrome,
                   Countdowns& countdowns, EventWriter& events, const SessionServices& services);

    void Execute(int command);

  private:
    void OpenProfile();
    /// False, and told, while changes of the system are locked.
    [[nodiscard]] bool MayChangeSystem();

    FrameWindow& frame;
    MessageBoxes& boxes;
    CUserProfileSet& profiles;
    const CSystemOptions& systemOptions;
    const COnScreenKeyboard& keyboard;
    SessionController& session;
    WindowChrome& chrome;
    Countdowns& countdowns;
    EventWriter& events;
    SessionServices services;
    BulkLearningController bulkLearning;
    SimulatorController simulators;
};

} // namespace ondrilo
