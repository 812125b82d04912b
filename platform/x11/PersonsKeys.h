#pragma once

#include "platform/x11/X11Connection.h"

#include <bitset>
#include <cstdint>
#include <optional>

namespace ondrilo {

/// A set of keycodes.
using Keycodes = std::bitset<256>;

[[nodiscard]] Keycodes KeycodesOf(const std::uint8_t* bits);

/// Which keys of one input device are down: asked at once and answered later, so that several questions share
/// one way to the server and back.
class DeviceKeys {
  public:
    DeviceKeys(const X11Connection& connection, std::uint8_t device);
    [[nodiscard]] Keycodes Down() const;

  private:
    const X11Connection& connection;
    unsigned question;
};

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
