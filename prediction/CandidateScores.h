#pragma once

#include "prediction/BestSelection.h"
#include "prediction/DictionaryEntry.h"
#include "prediction/DictionarySide.h"

#include <cstdint>
#include <vector>

namespace ondrilo {

/// How candidates are scored: the share of an entry in all entries, the probability of a pair given its first
/// entry, and a term by class, each with its weights.
struct ScoreRule {
    VocabularyTotals totals;
    double weight = 1;
    double userWeight = 1;
    /// The entry before; none leaves out the pair step.
    EntryId previous = kNoEntry;
    double pairWeight = 1;
    double userPairWeight = 1;
    /// By class; empty leaves out the class step.
    std::span<const double> classTerms;
};

/// The candidates of a prediction with their scores: what the word and the sentence predictor share. Holds
/// its work areas, so that filling it again allocates nothing.
class CandidateScores {
  public:
    /// Most candidates of one prediction.
    static constexpr std::size_t kCapacity = 100'000;

    CandidateScores();

    void Start(const Vocabulary& vocabulary);
    /// Both append; they throw std::invalid_argument when the candidates are too many.
    void AddRun(Vocabulary::Run run);
    void AddSuccessorsOf(EntryId first);

    void Score(const ScoreRule& rule);
    /// The best `n` of what was scored since the last Start.
    std::size_t Best(std::size_t n, std::vector<DictionaryScore>& out);

  private:
    void CheckRoom(std::size_t further) const;
    void MarkSuccessors(EntryId first);
    void UnmarkSuccessors();

    const Vocabulary* vocabulary = nullptr;
    std::vector<EntryId> candidates;
    std::vector<double> scores;
    std::vector<SelectedScore> best;
    std::vector<Successor> successors;
    /// By entry: 1 + index in `successors`, 0 for an entry that is none. All 0 between predictions.
    std::vector<std::uint16_t> marks;
};

} // namespace ondrilo
