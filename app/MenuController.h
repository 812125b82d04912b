#pragma once

#include "app/BulkLearningController.h"
#include "app/Countdown.h"
#include "app/MenuCommands.h"
#include "app/ProfileController.h"
#include "app/SimulatorController.h"
#include "app/SystemOptionsController.h"
#include "app/VocabularyController.h"
#include "app/WindowChrome.h"

namespace ondrilo {

/// Runs the commands of the menu, one at a time: what is locked or in the way of keyboard editing is refused,
/// and while one runs, the context does not change the profile.
class MenuController {
  public:
    MenuController(const Environment& environment, const CSystemOptions& systemOptions,
                   const COnScreenKeyboard& keyboard, ProfileController& profiles,
                   VocabularyController& vocabulary, LoggingController& logging,
                   BulkLearningController& bulkLearning, SystemOptionsController& systemOptionsController,
                   SimulatorController& simulators, WindowChrome& chrome, Countdowns& countdowns,
                   const SessionServices& services);

    /// `number` is one of FindMenuCommand.
    void Execute(int number);
    /// True while a command is at work, with its dialogs.
    [[nodiscard]] bool IsRunning() const { return running; }

  private:
    /// False, and told, if the command is refused as things are.
    [[nodiscard]] bool IsAllowed(const MenuCommand& command);
    void Run(int number);

    FrameWindow& frame;
    MessageBoxes& boxes;
    Dialogs& dialogs;
    const CSystemOptions& systemOptions;
    const COnScreenKeyboard& keyboard;
    ProfileController& profiles;
    VocabularyController& vocabulary;
    LoggingController& logging;
    BulkLearningController& bulkLearning;
    SystemOptionsController& systemOptionsController;
    SimulatorController& simulators;
    WindowChrome& chrome;
    Countdowns& countdowns;
    SessionServices services;
    bool running = false;
};

} // namespace ondrilo
