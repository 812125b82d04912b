#pragma once

#include "text/Text.h"

#include <vector>

namespace ondrilo {

/// Counts the key presses of a typist on a Portuguese keyboard, without any keyboard: a lone capital takes
/// Shift, a run of capitals Caps Lock, which the first small letter takes back.
class CKeyboardSimulator {
  public:
    /// The presses for `c`, and their names ("Shift", "CapsLock" or the character, small) at the end of
    /// `keys`. `capsLock` is the simulated state; `next` is the character that follows.
    static int CountChar(bool& capsLock, char c, char next, std::vector<Text>& keys);
    /// The sum over the characters of `text`; `next` follows the last one.
    static int CountText(bool& capsLock, TextView text, char next, std::vector<Text>& keys);
};

} // namespace ondrilo
