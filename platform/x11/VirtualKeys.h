#pragma once

#include "platform/Keyboard.h"
#include "platform/x11/KeyboardMap.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

/// The one rule for the virtual keys that a key event stands for, whichever window it goes to.
namespace ondrilo {

/// The code of a key that the layout does not know.
inline constexpr int kUnknownKey = 231;

/// What the desktop tells of a key.
struct KeySigns {
    Keysym symbol = 0;             ///< with the modifiers that are down
    std::optional<char> character; ///< that it writes; a dead key writes its accent, in this sense
    unsigned modifiers = kNoShift; ///< KeyShift bits that are down
};

/// Which key writes a character on the layout.
using KeyOfCharacter = std::function<std::optional<LayoutKey>(char)>;

/// In the order in which they go down. Most often one; a letter whose accent has a dead key of its own on the
/// layout is the accent, the letter and the modifiers that they need and that are not down already, whichever
/// way it came; AltGr is Control and Alt.
[[nodiscard]] std::vector<int> VirtualKeysOf(const KeySigns& signs, const KeyOfCharacter& keyOf);
/// The same for a character without a key of its own.
[[nodiscard]] std::vector<int> VirtualKeysOf(char c, unsigned modifiers, const KeyOfCharacter& keyOf);

/// Of KeyDataBits all but the modifiers.
[[nodiscard]] std::int32_t KeyDataOf(std::uint32_t keycode, bool isRelease, bool isRepeat);

} // namespace ondrilo
