#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

namespace ondrilo {

using Milliseconds = std::chrono::milliseconds;

/// Local date and time as people read it; weekday 1 (Sunday) to 7 (Saturday).
struct LocalTime {
    int year = 1970, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0, millisecond = 0;
    int weekday = 5;
};

/// All time that the logic knows. Tests inject their own.
class Clock {
  public:
    virtual ~Clock() = default;
    /// Time since an arbitrary start; never goes back.
    [[nodiscard]] virtual Milliseconds Monotonic() const = 0;
    /// Seconds since the epoch.
    [[nodiscard]] virtual std::int64_t Seconds() const = 0;
    [[nodiscard]] virtual LocalTime Local() const = 0;
    /// Blocks the calling thread; only the wait of the context's first readings uses it.
    virtual void Sleep(Milliseconds duration) = 0;
};

/// When the next tick of a periodic clock is due. Deadlines stand on a fixed grid, so ticks come late when a
/// handler was slow, never fast; deadlines missed altogether are dropped, so ticks never come in a bunch.
class TickDeadline {
  public:
    TickDeadline(Milliseconds period, Milliseconds now) : period(period), deadline(now + period) {}
    /// Time to wait from `now`; zero if the tick is due.
    [[nodiscard]] Milliseconds Remaining(Milliseconds now) const {
        return deadline > now ? deadline - now : Milliseconds{0};
    }
    /// To be called when a tick starts: moves the deadline to the first grid point after `now`.
    void Advance(Milliseconds now) {
        do
            deadline += period;
        while (deadline <= now);
    }

  private:
    Milliseconds period;
    Milliseconds deadline;
};

/// A running timer; dropping it stops it.
class Timer {
  public:
    virtual ~Timer() = default;
};

class TimerService {
  public:
    virtual ~TimerService() = default;
    /// Calls `tick` on the user-interface thread every `period` by the rule of TickDeadline; null if the
    /// desktop has no timer left.
    [[nodiscard]] virtual std::unique_ptr<Timer> Start(Milliseconds period, std::function<void()> tick) = 0;
    /// Calls `action` once after `delay`; dropping the timer before that cancels it.
    [[nodiscard]] virtual std::unique_ptr<Timer> After(Milliseconds delay, std::function<void()> action) = 0;
};

} // namespace ondrilo
