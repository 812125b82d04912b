#pragma once

#include "prediction/DictionaryEntry.h"
#include "text/Splitter.h"

#include <span>

namespace ondrilo {

/// What a profile keeps from the prediction keys.
struct ResultLimits {
    /// Each character of it is unwanted.
    TextView unwantedLetters;
    /// Unwanted sequences, separated by any separator.
    TextView unwantedSequences;
    /// Longest word or sentence, in characters; pictograms have no limit.
    int longest = 0;
};

/// What remains of a prediction, best first, brackets included.
struct FilteredResults {
    Tokens plain;
    Tokens pictograms;
};

/// Keeps single words and pictogram words, of the latter each name once.
[[nodiscard]] FilteredResults FilterWords(std::span<const DictionaryScore> best, const ResultLimits& limits);
/// Keeps sentences without pictograms and those of pictograms alone, of the latter each wording once.
[[nodiscard]] FilteredResults FilterSentences(std::span<const DictionaryScore> best,
                                              const ResultLimits& limits);

} // namespace ondrilo
