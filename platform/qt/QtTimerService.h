#pragma once

#include "platform/Clock.h"

namespace ondrilo {

/// Timers of Qt's event loop, also inside a dialog's loop. A timer may be dropped from inside its own tick.
class QtTimerService : public TimerService {
  public:
    /// `clock` outlives the service and its timers.
    explicit QtTimerService(const Clock& clock) : clock(clock) {}
    [[nodiscard]] std::unique_ptr<Timer> Start(Milliseconds period, std::function<void()> tick) override;
    [[nodiscard]] std::unique_ptr<Timer> After(Milliseconds delay, std::function<void()> action) override;

  private:
    const Clock& clock;
};

} // namespace ondrilo
