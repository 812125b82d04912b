#pragma once

#include "app/CaretFollower.h"
#include "app/Countdown.h"
#include "app/TargetController.h"
#include "app/WindowPlacement.h"
#include "logging/WritingClock.h"
#include "profiles/CSystemOptions.h"

#include <functional>

namespace ondrilo {

/// The one timer of a session, and what falls due on its ticks.
class SessionClock {
  public:
    using ChangeProfile = std::function<void(TextView)>;

    SessionClock(const Environment& environment, CUserProfileSet& profiles,
                 const CSystemOptions& systemOptions, TargetController& targetController,
                 PredictionCycle& cycle, Countdowns& countdowns, WritingClock& writingClock,
                 WindowPlacement& placement, CaretFollower& caretFollower, const SessionServices& services,
                 ChangeProfile changeProfile);

    /// Tells the person if no timer can be had; the session then goes on without a clock.
    void StartTimers();
    void StopTimers();
    /// The limit of the person's silence changed: what is already longer would never be due.
    void RestartSilence();

  private:
    void OnTimer();
    void MoveAgent();
    void AdaptToContext();
    void ReadHints();
    void Count(Metric metric);
    void PauseWriting();
    [[nodiscard]] const CUserProfileProperties& Options() const { return profiles.Active().properties; }

    TimerService& timers;
    MessageBoxes& boxes;
    const Desktop& desktop;
    FrameWindow& frame;
    CUserProfileSet& profiles;
    const CSystemOptions& systemOptions;
    TargetController& targetController;
    PredictionCycle& cycle;
    Countdowns& countdowns;
    WritingClock& writingClock;
    WindowPlacement& placement;
    CaretFollower& caretFollower;
    SessionServices services;
    ChangeProfile changeProfile;
    std::unique_ptr<Timer> timer;
};

} // namespace ondrilo
