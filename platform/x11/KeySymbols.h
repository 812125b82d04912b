#pragma once

#include "text/Text.h"

#include <cstdint>
#include <optional>
#include <vector>

/// The one table between X key symbols and virtual key codes.
namespace ondrilo {

/// An X key symbol, as <xkbcommon/xkbcommon-keysyms.h> numbers them.
using Keysym = std::uint32_t;

/// The virtual key of a key that gives `symbol`; for keys that write, their symbol without modifiers. The
/// numeric pad gives its digits with Num Lock on and the keys of the cursor block with Num Lock off.
[[nodiscard]] std::optional<int> VirtualKeyOf(Keysym symbol);
/// What a key of the numeric pad that gives `symbol` with Shift would give without: Shift turns round what
/// Num Lock says. All other symbols stay.
[[nodiscard]] Keysym WithoutShift(Keysym symbol);
/// The symbols of a virtual key, the most usual first.
[[nodiscard]] std::vector<Keysym> SymbolsOf(int code);

/// "Enter", "Num 5", "F1", "A", "7"; empty for the keys whose writing depends on the layout.
[[nodiscard]] Text NameOfVirtualKey(int code);

/// The codes that are left for keys of the layout that the table does not know, or that share a symbol's
/// code with another key.
[[nodiscard]] const std::vector<int>& LayoutDependentKeys();

/// The accent that a dead key stands for, in Windows-1252: one of ` ´ ^ ~.
[[nodiscard]] std::optional<char> AccentOfDeadKey(Keysym symbol);

/// Shift, Control, Alt, AltGr and their kin: keys that act while they are held, unlike Caps Lock.
[[nodiscard]] bool IsHeldModifier(Keysym symbol);

} // namespace ondrilo
