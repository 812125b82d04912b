#pragma once

#include "platform/Keyboard.h"

#include <QKeyEvent>

#include <cstdint>
#include <vector>

/// Key events of the desktop as virtual keys.
namespace ondrilo {

/// The code of a key that the layout does not know.
inline constexpr int kUnknownKey = 231;

/// The virtual keys that the event stands for, in the order in which they go down. Most often one; a letter
/// whose accent has a dead key of its own on the layout is the accent, the letter and the modifiers that they
/// need and that are not down already, whichever way it came; AltGr is Control and Alt.
[[nodiscard]] std::vector<int> VirtualKeysOf(const QKeyEvent& event, const KeyOutput& layout);
/// The same for a character that an input method composed.
[[nodiscard]] std::vector<int> VirtualKeysOf(char c, Qt::KeyboardModifiers down, const KeyOutput& layout);

/// Repeat count 1 in bits 0 to 15, scan code in bits 16 to 23; bit 30 for a repeat or a release, bit 31 for a
/// release.
[[nodiscard]] std::int32_t KeyDataOf(const QKeyEvent& event);

} // namespace ondrilo
