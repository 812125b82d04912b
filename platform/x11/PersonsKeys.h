#pragma once

#include "platform/x11/X11Connection.h"

#include <bitset>
#include <cstdint>
#include <optional>

namespace ondrilo {

/// A set of keycodes.
using Keycodes = std::bitset<256>;

/// The input devices behind the one keyboard of the server: the person's, and the one through which programs
/// type.
class PersonsKeys {
  public:
    explicit PersonsKeys(const X11Connection& connection);

    /// Keys that are physically down, on all of the person's keyboards.
    [[nodiscard]] Keycodes Down() const;
    /// The device through which programs type; nothing if the server does not tell devices apart.
    [[nodiscard]] std::optional<std::uint8_t> TypingDevice() const;

  private:
    const X11Connection& connection;
    bool isAvailable = false;
};

} // namespace ondrilo
