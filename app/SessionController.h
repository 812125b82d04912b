#pragma once

#include "app/KeyboardController.h"
#include "app/LoggingController.h"
#include "app/SessionClock.h"
#include "keyboards/CCommands.h"

namespace ondrilo {

/// Begins and ends the time during which one profile is active. The order of the steps counts.
class SessionController {
  public:
    SessionController(const Environment& environment, CUserProfileSet& profiles,
                      KeyboardController& keyboards, ScanningController& scanning, LoggingController& logging,
                      WindowPlacement& placement, TargetController& targetController,
                      PreviewController& preview, PredictionKeys& keys, Predictions& predictions,
                      KeySender& sender, CKeyboard& keyboardSimulator, CCommands& commands,
                      SessionState& state, const SessionServices& services);

    /// Given once, before the first session: the clock can change the profile itself.
    void SetClock(SessionClock& sessionClock) { clock = &sessionClock; }

    /// Needs an active profile.
    void StartSession();
    /// Handles no message meanwhile, and throws away what was posted. The active profile stays active.
    /// Nothing if no session runs.
    void StopSession();
    /// `withNotice`: a notice stands while the new profile loads.
    void ChangeProfile(TextView name, bool withNotice = false);
    /// Makes a new profile and goes over to it.
    void CreateProfile(TextView name);
    /// Options of the active profile changed while the session runs: what shows them follows, but for
    /// state and place that the window begins with. The text that the person has written stays.
    void ApplyOptions(const CUserProfileProperties& before);
    /// The voices of the active profile, with their exceptions as they are now. What is being spoken ends.
    void SelectVoices();
    /// False from the first step of an end on, and between two sessions.
    [[nodiscard]] bool IsRunning() const { return running; }

  private:
    void StartWithOwnKeyboard();
    void ReleaseVoices();
    void StartAgent();
    void StopAgent();
    void CreatePreview();
    [[nodiscard]] const CUserProfileProperties& Options() const { return profiles.Active().properties; }

    MessageQueue& queue;
    FrameWindow& frame;
    SessionWindows& windows;
    const Desktop& desktop;
    CUserProfileSet& profiles;
    KeyboardController& keyboards;
    ScanningController& scanning;
    LoggingController& logging;
    WindowPlacement& placement;
    TargetController& targetController;
    PreviewController& preview;
    PredictionKeys& keys;
    Predictions& predictions;
    KeySender& sender;
    CKeyboard& keyboardSimulator;
    CCommands& commands;
    SessionState& state;
    SessionServices services;
    SessionClock* clock = nullptr;
    bool running = false;
    bool hasAgent = false; ///< a character is on show, whatever the options say by now
};

} // namespace ondrilo
