#pragma once

#include "text/Splitter.h"

namespace ondrilo {

/// A text with exactly one word and no sentence terminator.
[[nodiscard]] bool IsSingleWord(TextView text);
/// A text with a terminator and at least one word.
[[nodiscard]] bool IsSentence(TextView text);
/// A text that is no sentence and has more than one word.
[[nodiscard]] bool IsWordSequence(TextView text);

/// "[...]": at least two characters, at most one "[" and one "]", standing at the ends. Names a pictogram.
[[nodiscard]] bool IsPictogramToken(TextView text);
/// Every token of SplitTokens is a pictogram token; an empty text is.
[[nodiscard]] bool IsAllPictograms(TextView text);
/// No token of SplitTokens is a pictogram token; an empty text is.
[[nodiscard]] bool HasNoPictograms(TextView text);

/// What a key's text teaches when it is written at once.
enum class LearnedKind { Nothing, Words, Sentence, Terminators };
[[nodiscard]] LearnedKind LearnedKindOf(TextView text);

} // namespace ondrilo
