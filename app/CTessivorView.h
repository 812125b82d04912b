#pragma once

#include "app/InputRouter.h"
#include "app/MenuController.h"

namespace ondrilo {

/// The hub: owns everything that lives as long as the process and hands each event to the controller whose
/// job it is.
class CTessivorView : private FrameWindowListener {
  public:
    /// All of `environment` and `services` outlives the view.
    CTessivorView(const Environment& environment, const SessionServices& services);
    CTessivorView(const CTessivorView&) = delete;
    CTessivorView& operator=(const CTessivorView&) = delete;
    ~CTessivorView() override;

    /// The start of the system proper, once the main window is there.
    void OnInitialUpdate();
    /// One event of the message queue; what comes outside a session is dropped.
    void Handle(const MessageEvent& event);

    [[nodiscard]] CUserProfileSet& Profiles() { return userProfiles; }
    [[nodiscard]] COnScreenKeyboard& Keyboard() { return keyboard; }
    [[nodiscard]] const Targets& TextTargets() const { return targets; }

  private:
    void OnActivateView() override;
    void OnDraw() override;
    void OnKeyDown(int code, std::int32_t keyData) override;
    void OnKeyUp(int code, std::int32_t keyData) override;
    void OnMenuCommand(int command) override;
    void OnDestroy() override;

    [[nodiscard]] Text StartProfile();

    Environment environment;
    SessionServices services;

    CSystemOptions systemOptions;
    CUserProfileSet userProfiles;
    bool profilesReady = false;
    CKeyboard keyboardSimulator;
    COnScreenKeyboard keyboard;
    CCommands commands;
    Targets targets;
    Predictions predictions;
    SessionState state;
    Countdowns countdowns;
    WritingClock writingClock;
    EventWriter events;

    SpecialKeys specialKeys;
    PredictionKeys predictionKeys;
    PredictionCycle cycle;
    WindowPlacement placement;
    WindowChrome chrome;
    CaretFollower caretFollower;
    PreviewController preview;
    LearningController learning;
    SpeechController speech;
    KeySender sender;
    ScanningController scanning;
    KeyboardController keyboards;
    LoggingController logging;
    TargetController targetController;
    CompletionController completion;
    SelectionController selections;
    AbbreviationController abbreviations;
    SessionController session;
    SessionClock clock;
    CommandController commandController;
    KeySelection keySelection;
    InputRouter router;
    ProfileController profileController;
    VocabularyController vocabulary;
    BulkLearningController bulkLearning;
    SystemOptionsController systemOptionsController;
    SimulatorController simulators;
    MenuController menuController;
};

} // namespace ondrilo
