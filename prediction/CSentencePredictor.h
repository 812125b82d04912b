#pragma once

#include "prediction/CDictionary.h"
#include "prediction/CandidateScores.h"
#include "text/Splitter.h"

namespace ondrilo {

class CUserProfileProperties;

/// As CWordPredictor, for whole sentences: no weights, no classes, and texts are normalised here. The profile
/// is not consulted.
class CSentencePredictor {
  public:
    void Predict(const CDictionary& dictionary, const CUserProfileProperties& profile,
                 TextView previousSentence, TextView prefix);
    /// With alternative prefixes; an empty one among others gives nothing.
    void PredictForms(const CDictionary& dictionary, const CUserProfileProperties& profile,
                      TextView previousSentence, const Tokens& prefixForms);
    std::size_t BestSentences(std::size_t n, CDictionarySentenceScoreSet& out) {
        return candidates.Best(n, out);
    }

  private:
    void Start(const CDictionary& dictionary, TextView previousSentence);
    void AddContinuations(const Vocabulary& sentences, TextView prefix);
    void Score(const CDictionary& dictionary);
    TextView Normalize(TextView text);

    CandidateScores candidates;
    EntryId previous = kNoEntry;
    Text normal;
};

} // namespace ondrilo
