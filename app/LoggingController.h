#pragma once

#include "app/Environment.h"
#include "app/ScanningController.h"
#include "app/SessionServices.h"
#include "app/SessionState.h"
#include "logging/WritingClock.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Starts and ends the event log of a session as the profile wants it, and reads the metrics.
class LoggingController {
  public:
    LoggingController(const Environment& environment, const CUserProfileSet& profiles, const Targets& targets,
                      const ScanningController& scanning, WritingClock& writingClock, SessionState& state,
                      const SessionServices& services);

    void ResetMetrics();
    /// Starts anew, if the profile has logging on. The first log of a process may begin with a sound and a
    /// notice, by which a video of the session can be set against the log.
    void StartLog();
    void EndLog();
    /// To be called before the editor's text is lost.
    void KeepFinalText();
    /// Asks, and goes on in a new log.
    void Restart();
    /// The metrics as they are now.
    void ShowMetrics();

  private:
    void PlayStartSound();
    [[nodiscard]] std::vector<Text> GetMetrics() const;
    /// What the person has written: the texts that were cleared, then that of the editor.
    [[nodiscard]] std::vector<Text> FinalTexts() const;

    MessageBoxes& boxes;
    Dialogs& dialogs;
    SessionWindows& windows;
    const Desktop& desktop;
    const Clock& clock;
    SoundPlayer& sounds;
    const CUserProfileSet& profiles;
    const Targets& targets;
    const ScanningController& scanning;
    WritingClock& writingClock;
    SessionState& state;
    SessionServices services;
    bool startSoundPlayed = false;
    /// Of the switches, when the metrics were last reset.
    int formerActivations = 0;
};

} // namespace ondrilo
