#pragma once

#include "text/Text.h"

#include <vector>

namespace ondrilo {

/// The word separators, in the order of the system's table (the full stop stands in it twice). Hyphen and
/// apostrophe are none: "guarda-chuva" is one word.
inline constexpr TextView kSeparators = " ,.:)(;/.?!«»\"\n\r\t"_w;
inline constexpr TextView kTerminators = ".?!";
inline constexpr TextView kWhiteSpace = " \n\r\t";

[[nodiscard]] inline bool IsSeparator(char c) {
    return kSeparators.find(c) != TextView::npos;
}
[[nodiscard]] inline bool IsTerminator(char c) {
    return kTerminators.find(c) != TextView::npos;
}
// Compared one by one: loading a dictionary normalises millions of characters.
[[nodiscard]] inline bool IsWhiteSpace(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

using Tokens = std::vector<Text>;

/// Most tokens that one split yields; what follows is dropped.
inline constexpr std::size_t kMaximumTokens = 256;
inline constexpr std::size_t kAllTokens = static_cast<std::size_t>(-1);

/// The maximal runs of characters outside `delimiters`, never an empty one, at most `most`.
[[nodiscard]] Tokens Split(TextView text, TextView delimiters = kSeparators,
                           std::size_t most = kMaximumTokens);

/// As Split by the separators, but each bracketed word is one token, brackets included: "vou [bom dia] já"
/// gives "vou", "[bom dia]" and "já"; an unclosed "[bom" gives "[bom]". A run between brackets that
/// holds "#" counts as bracketed. `most` limits these runs and the words of each.
[[nodiscard]] Tokens SplitTokens(TextView text, std::size_t most = kMaximumTokens);

/// The tokens joined with `glue` between them.
[[nodiscard]] Text Join(const Tokens& tokens, TextView glue);

/// `text` with every occurrence of `from` (not empty) turned into `to`, from left to right.
[[nodiscard]] Text Replace(TextView text, TextView from, TextView to);

/// `text` without the characters of `characters` at its start (TrimLeft), or at both ends (Trim).
[[nodiscard]] TextView TrimLeft(TextView text, TextView characters = kWhiteSpace);
[[nodiscard]] TextView Trim(TextView text, TextView characters = kWhiteSpace);

} // namespace ondrilo
