#pragma once

#include "platform/Keyboard.h"

namespace ondrilo {

/// The key of a character on a Portuguese keyboard. The dead accents (` ´ ^ ~) are keys like the others;
/// letters with an accent have none. AltGr counts as Control with Alt.
[[nodiscard]] std::optional<LayoutKey> PortugueseKeyOf(char c);

} // namespace ondrilo
