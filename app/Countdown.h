#pragma once

#include <cstdint>
#include <initializer_list>
#include <limits>

namespace ondrilo {

inline constexpr std::int32_t kTick = 100; // ms

/// Milliseconds since a start, in steps of a tick. Compared for equality: what is no multiple of a tick is
/// never due.
class Countdown {
  public:
    void Restart() { elapsed = 0; }
    void Stop() { elapsed = kStopped; }
    [[nodiscard]] bool IsStopped() const { return elapsed == kStopped; }
    /// One tick. True if the countdown is due at `limit`; it then stands still until it is stopped or
    /// restarted. Otherwise it goes on, so that a limit of 1,000 is due at the eleventh tick after the start.
    bool Tick(std::int64_t limit) {
        if (elapsed == limit && !IsStopped())
            return true;
        if (!IsStopped() && elapsed <= std::numeric_limits<std::int32_t>::max() - kTick)
            elapsed += kTick;
        return false;
    }

  private:
    static constexpr std::int32_t kStopped = -1;
    std::int32_t elapsed = kStopped;
};

/// The seven countdowns of a session. Whoever has news for one restarts or stops it.
struct Countdowns {
    Countdown target;      ///< settling of the focus before a new target is attached
    Countdown agent;       ///< the character follows the window
    Countdown reposition;  ///< the window follows or flees the caret
    Countdown prediction;  ///< pause in the writing before new predictions
    Countdown context;     ///< next look at the context
    Countdown cooperative; ///< next look for the partner's suggestions
    Countdown idle;        ///< silence of the person

    /// The state at the start of a session: all run but the cooperative one.
    void Start() {
        *this = {};
        for (auto* countdown : {&target, &agent, &reposition, &prediction, &context, &idle})
            countdown->Restart();
    }
};

} // namespace ondrilo
