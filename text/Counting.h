#pragma once

#include "text/Splitter.h"

namespace ondrilo {

/// Counts over texts for the metrics. Except for CountSymbols, callers give a text through DropBrackets.

/// All characters except the carriage return.
[[nodiscard]] int CountCharacters(TextView text);
/// Parts between separators, without a limit.
[[nodiscard]] int CountWords(TextView text);
/// Terminators whose previous character is none; the character before the first counts as a blank.
[[nodiscard]] int CountSentences(TextView text);
/// Pictogram tokens.
[[nodiscard]] int CountSymbols(TextView text);
/// Takes brackets out by index, so that of two adjacent ones the second stays.
[[nodiscard]] Text DropBrackets(TextView text);

/// Key presses on a Portuguese Qwerty keyboard: runs of capitals through Caps Lock, single ones through
/// Shift, dead keys counted apart.
[[nodiscard]] int CountQwertyKeys(TextView text);
/// As CountQwertyKeys, but each character of the Qwerty table is one press.
[[nodiscard]] int CountKeyPresses(TextView text);

/// A letter and a capital for key counting: A to Z and the capitals with grave, acute, circumflex or tilde of
/// Portuguese and its neighbours, and "Ç".
[[nodiscard]] bool IsUpper(char c);
[[nodiscard]] bool IsLetter(char c);

} // namespace ondrilo
