#include "logging/WritingClock.h"

namespace ondrilo {

void WritingClock::Reset() {
    start = pauseStart = clock.Seconds();
    paused = 0;
    active = false;
}

void WritingClock::Resume() {
    if (active)
        return;
    paused += clock.Seconds() - pauseStart;
    active = true;
}

void WritingClock::Pause(int silence) {
    if (!active)
        return;
    pauseStart = clock.Seconds() - silence;
    active = false;
}

std::int64_t WritingClock::TotalSeconds() const {
    return clock.Seconds() - start;
}

std::int64_t WritingClock::EffectiveSeconds() const {
    return (active ? clock.Seconds() : pauseStart) - paused - start;
}

} // namespace ondrilo
