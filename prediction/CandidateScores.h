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
    void MarkCandidates(const Successors& successors);
    void MarkRun(const Successors& successors, EntryId first, EntryId last);
    void MarkInDisorder(const Successors& successors);
    void Mark(EntryId candidate, std::size_t successor);

    /// Candidates begin to end - 1, which came in ascending order.
    struct CandidateRun {
        std::size_t begin;
        std::size_t end;
    };

    const Vocabulary* vocabulary = nullptr;
    std::vector<EntryId> candidates;
    std::vector<CandidateRun> runs;
    std::vector<double> scores;
    std::vector<SelectedScore> best;
    /// By entry: 1 + index among the successors of the entry before, 0 for one that is none. All 0 between
    /// predictions, thanks to `marked`.
    std::vector<std::uint16_t> marks;
    std::vector<EntryId> marked;
};

} // namespace ondrilo
