#pragma once

#include "app/Environment.h"
#include "app/SessionServices.h"
#include "app/SessionState.h"
#include "logging/WritingClock.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Starts and ends the event log of a session as the profile wants it.
class LoggingController {
  public:
    LoggingController(const Environment& environment, const CUserProfileSet& profiles,
                      WritingClock& writingClock, SessionState& state, const SessionServices& services);

    void ResetMetrics();
    /// Starts anew, if the profile has logging on. The first log of a process may begin with a sound and a
    /// notice, by which a video of the session can be set against the log.
    void StartLog();
    void EndLog();

  private:
    void PlayStartSound();

    SessionWindows& windows;
    const Desktop& desktop;
    const Clock& clock;
    SoundPlayer& sounds;
    const CUserProfileSet& profiles;
    WritingClock& writingClock;
    SessionState& state;
    SessionServices services;
    bool startSoundPlayed = false;
};

} // namespace ondrilo
