#pragma once

#include "keyboards/COnScreenKeyData.h"
#include "text/Splitter.h"

#include <vector>

namespace ondrilo {

/// Most results of each kind.
inline constexpr std::size_t kMaximumPredictions = 100;

/// A pictogram, or several in a row, ready to be put on a key, and the dictionary text that it came from.
struct PictogramCandidate {
    COnScreenKeyData key;
    Text text;
    bool operator==(const PictogramCandidate&) const = default;
};
using PictogramCandidates = std::vector<PictogramCandidate>;

/// The results of the last cycle, best first. Pictogram words keep their brackets.
struct Predictions {
    Tokens predictedWords;
    Tokens predictedSentences;
    Tokens predictedPictogramWords;
    Tokens predictedPictogramSentences;
    PictogramCandidates pictogramCandidates;         ///< one pictogram each
    PictogramCandidates pictogramSentenceCandidates; ///< several each

    /// The keys in which pictograms are found; not a result, but refilled with each keyboard.
    std::vector<COnScreenKeyData> pictogramKeys;

    void ClearResults() {
        for (auto* list :
             {&predictedWords, &predictedSentences, &predictedPictogramWords, &predictedPictogramSentences})
            list->clear();
        pictogramCandidates.clear();
        pictogramSentenceCandidates.clear();
    }
};

} // namespace ondrilo
