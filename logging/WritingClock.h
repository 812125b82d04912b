#pragma once

#include "platform/Clock.h"

#include <cstdint>

namespace ondrilo {

/// The time that a person really spent writing, in seconds: from the first input on, without the pauses.
class WritingClock {
  public:
    explicit WritingClock(const Clock& clock) : clock(clock) {}

    /// Starts anew, in a pause that ends with the first input.
    void Reset();
    /// An input came: ends a pause.
    void Resume();
    /// The person has been silent for `silence` seconds: they are not writing time.
    void Pause(int silence);

    [[nodiscard]] std::int64_t TotalSeconds() const;
    [[nodiscard]] std::int64_t EffectiveSeconds() const;

  private:
    const Clock& clock;
    std::int64_t start = 0;
    std::int64_t pauseStart = 0;
    std::int64_t paused = 0;
    bool active = false;
};

} // namespace ondrilo
