#pragma once

#include "prediction/CDictionary.h"
#include "prediction/CandidateScores.h"
#include "text/Splitter.h"

namespace ondrilo {

class CUserProfileProperties;

/// Answers which dictionary entries continue best what is being written, best first. Results stand until the
/// next prediction or the dictionary's next change. A prediction allocates nothing once the predictor has
/// served a dictionary of the same size.
class CWordPredictor {
  public:
    /// One prefix; both texts are folded here. Throws std::invalid_argument when more than 100,000 candidates
    /// are found; then there are no results.
    void Predict(const CDictionary& dictionary, const CUserProfileProperties& profile, TextView previousWord,
                 TextView prefix);
    /// The same with alternative prefixes; where some are empty and some not, an empty one stands for the
    /// successors of the previous word.
    void PredictForms(const CDictionary& dictionary, const CUserProfileProperties& profile,
                      TextView previousWord, const Tokens& prefixForms);
    /// The best `n` of the last prediction; `out` is filled anew. Returns their number.
    std::size_t BestWords(std::size_t n, CDictionaryWordScoreSet& out) { return candidates.Best(n, out); }

  private:
    void Start(const CDictionary& dictionary, TextView previousWord);
    void Gather(const Vocabulary& words, TextView prefix);
    void Score(const CDictionary& dictionary, const CUserProfileProperties& profile);
    void FillClassTerms(const CDictionary& dictionary, double weight);
    TextView Fold(TextView text);

    CandidateScores candidates;
    EntryId previous = kNoEntry;
    /// What the class step adds to a candidate, by its class; empty where the step does not apply.
    std::vector<double> classTerms;
    Text folded;
};

} // namespace ondrilo
