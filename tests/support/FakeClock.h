#pragma once

#include "platform/Clock.h"

#include <map>
#include <vector>

namespace ondrilo {

/// Time that stands still until a test moves it.
class FakeClock : public Clock {
  public:
    [[nodiscard]] Milliseconds Monotonic() const override { return now; }
    [[nodiscard]] std::int64_t Seconds() const override { return 1'600'000'000 + now.count() / 1000; }
    [[nodiscard]] LocalTime Local() const override { return local; }
    void Sleep(Milliseconds duration) override { now += duration; }

    Milliseconds now{0};
    LocalTime local;
};

/// Timers that a test fires by hand; keeps what was started in order.
class FakeTimers : public TimerService {
  public:
    [[nodiscard]] std::unique_ptr<Timer> Start(Milliseconds period, std::function<void()> tick) override {
        return exhausted ? nullptr : Add(period, std::move(tick));
    }
    [[nodiscard]] std::unique_ptr<Timer> After(Milliseconds delay, std::function<void()> action) override {
        return Add(delay, std::move(action));
    }
    /// Fires every timer of that period once, in the order of their start.
    void Fire(Milliseconds period) {
        const auto started = running;
        for (const auto& [number, timer] : started)
            if (timer.period == period && running.contains(number))
                timer.action();
    }

    bool exhausted = false;

  private:
    struct Running {
        Milliseconds period;
        std::function<void()> action;
    };
    struct Handle : Timer {
        Handle(FakeTimers& owner, int number) : owner(owner), number(number) {}
        ~Handle() override { owner.running.erase(number); }
        FakeTimers& owner;
        int number;
    };
    std::unique_ptr<Timer> Add(Milliseconds period, std::function<void()> action) {
        running[++last] = {period, std::move(action)};
        return std::make_unique<Handle>(*this, last);
    }

    std::map<int, Running> running;
    int last = 0;
};

} // namespace ondrilo
