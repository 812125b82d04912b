#pragma once

#include "text/Text.h"

#include <cstdint>
#include <optional>

namespace ondrilo {

/// Virtual key codes, the numbers in which profiles, keyboards and messages speak of keys.
namespace vk {
inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Shift = 16, Control = 17, Alt = 18, CapsLock = 20,
                     Space = 32, PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38,
                     Right = 39, Down = 40, Insert = 45, Delete = 46, Num0 = 96, NumDivide = 111, F1 = 112,
                     NumLock = 144;
} // namespace vk

/// Modifiers that a character needs on the person's layout.
enum KeyShift : unsigned { kNoShift = 0, kShift = 1, kControl = 2, kAlt = 4 };

/// What a message tells of a key's event beside the key: repeat count 1 in bits 0 to 15, scan code in bits 16
/// to 23, and these. The modifiers are told of presses in other programs only.
enum KeyDataBits : std::uint32_t {
    kKeyWithShift = 1U << 25,
    kKeyWithControl = 1U << 26,
    kKeyWasDown = 1U << 30, ///< a repeat or a release
    kKeyIsReleased = 1U << 31,
};
[[nodiscard]] constexpr bool Tells(std::int32_t keyData, std::uint32_t bits) {
    return (static_cast<std::uint32_t>(keyData) & bits) != 0;
}

struct LayoutKey {
    int code = 0;       ///< virtual key code
    unsigned shift = 0; ///< KeyShift bits
};

/// The person's real keyboard, as far as the logic needs it: which key writes a character, and typing into
/// whatever window has the focus. The adapter chooses the key codes of the desktop; accented letters go out
/// as composed symbols. Everything typed keeps the order of the calls.
class KeyOutput {
  public:
    virtual ~KeyOutput() = default;
    /// The key of `c` on the layout; dead accents (` ´ ^ ~) count as keys of their own. Nothing if the
    /// layout has no key for it.
    [[nodiscard]] virtual std::optional<LayoutKey> KeyOf(char c) const = 0;
    /// Types one Windows-1252 character, pressing and releasing what it needs; an unknown one is skipped.
    virtual void TypeCharacter(char c) = 0;
    virtual void KeyDown(int code) = 0;
    virtual void KeyUp(int code) = 0;
    [[nodiscard]] virtual bool IsCapsLockOn() const = 0;
    /// What people call the key, for the event log.
    [[nodiscard]] virtual Text KeyName(int code) const { return std::to_string(code); }
};

} // namespace ondrilo
