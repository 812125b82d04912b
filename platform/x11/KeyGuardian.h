#pragma once

#include "platform/x11/X11Connection.h"

#include <atomic>
#include <cstdint>
#include <sys/types.h>

namespace ondrilo {

/// A small companion process that releases the keys we hold when our process is gone, however it went: the
/// server itself would leave them pressed for ever. It shares the list of held keys with us, and knows of our
/// end by the closing of a pipe.
class KeyGuardian {
  public:
    KeyGuardian();
    KeyGuardian(const KeyGuardian&) = delete;
    KeyGuardian& operator=(const KeyGuardian&) = delete;
    ~KeyGuardian();

    /// To be told before the press is sent and after the release is.
    void Pressed(std::uint8_t keycode) { Set(keycode, 1); }
    void Released(std::uint8_t keycode) { Set(keycode, 0); }

    static constexpr int kKeycodes = 256;
    using HeldKeys = std::atomic<std::uint8_t>[kKeycodes];

  private:
    void Set(std::uint8_t keycode, std::uint8_t isHeld) {
        if (held)
            (*held)[keycode] = isHeld;
    }

    X11Connection connection; ///< the companion's; made here, since after a fork it cannot connect safely
    HeldKeys* held = nullptr;
    int lifeline = -1;
    pid_t companion = -1;
};

} // namespace ondrilo
