#include "platform/qt/QtTimerService.h"

#include <QTimer>

#include <optional>

namespace ondrilo {
namespace {

/// A single shot that is armed again for each deadline: Qt's own interval timers would measure the next tick
/// from the end of a slow handler, or hurry to catch up.
class QtTimer : public Timer {
  public:
    QtTimer(const Clock& clock, Milliseconds delay, bool periodic, std::function<void()> action)
        : clock(clock), action(std::make_shared<std::function<void()>>(std::move(action))) {
        timer.setSingleShot(true);
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Fire(); });
        if (periodic)
            deadline.emplace(delay, clock.Monotonic());
        timer.start(delay);
    }
    [[nodiscard]] bool IsRunning() const { return timer.isActive(); }

  private:
    void Fire() {
        const auto now = clock.Monotonic();
        if (deadline && deadline->Remaining(now) > Milliseconds{0}) {
            timer.start(deadline->Remaining(now)); // the event loop's clock is a little ahead of ours
            return;
        }
        // Armed before the tick runs, so that the ticks go on while the tick holds a dialog open.
        if (deadline) {
            deadline->Advance(now);
            timer.start(deadline->Remaining(now));
        }
        const auto kept = action; // the action may drop this timer
        (*kept)();
    }

    const Clock& clock;
    std::shared_ptr<std::function<void()>> action;
    std::optional<TickDeadline> deadline;
    QTimer timer;
};

std::unique_ptr<Timer> Started(std::unique_ptr<QtTimer> timer) {
    return timer->IsRunning() ? std::move(timer) : nullptr;
}

} // namespace

std::unique_ptr<Timer> QtTimerService::Start(Milliseconds period, std::function<void()> tick) {
    return Started(std::make_unique<QtTimer>(clock, period, true, std::move(tick)));
}

std::unique_ptr<Timer> QtTimerService::After(Milliseconds delay, std::function<void()> action) {
    return Started(std::make_unique<QtTimer>(clock, delay, false, std::move(action)));
}

} // namespace ondrilo
