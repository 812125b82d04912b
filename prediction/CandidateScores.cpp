#include "prediction/CandidateScores.h"

#include <stdexcept>

namespace ondrilo {
namespace {

/// 0 where there is nothing to divide by.
double Ratio(int part, int whole) {
    return part == 0 || whole == 0 ? 0 : static_cast<double>(part) / static_cast<double>(whole);
}

double Ratio(double part, double whole) {
    return whole == 0 ? 0 : part / whole;
}

} // namespace

CandidateScores::CandidateScores() : marks(Vocabulary::kCapacity) {
    candidates.reserve(kCapacity);
    scores.reserve(kCapacity);
    successors.reserve(Vocabulary::kMaximumSuccessors);
}

void CandidateScores::Start(const Vocabulary& newVocabulary) {
    vocabulary = &newVocabulary;
    candidates.clear();
    scores.clear();
}

void CandidateScores::CheckRoom(std::size_t further) const {
    if (candidates.size() + further > kCapacity)
        throw std::invalid_argument("too many candidates");
}

void CandidateScores::AddRun(Vocabulary::Run run) {
    CheckRoom(run.Size());
    vocabulary->Collect(run, candidates);
}

void CandidateScores::AddSuccessorsOf(EntryId first) {
    if (first == kNoEntry)
        return;
    vocabulary->ForEachSuccessor(first, Vocabulary::kMaximumSuccessors, [this](const Successor& next) {
        CheckRoom(1);
        candidates.push_back(next.entry);
    });
}

void CandidateScores::Score(const ScoreRule& rule) {
    const VocabularyTotals& totals = rule.totals;
    double previousShare = 0;
    double previousUserShare = 0;
    successors.clear();
    if (rule.previous != kNoEntry) {
        MarkSuccessors(rule.previous);
        previousShare = Ratio(vocabulary->Frequency(rule.previous), totals.general);
        previousUserShare = Ratio(vocabulary->UserFrequency(rule.previous), totals.user);
    }

    scores.resize(candidates.size());
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const EntryId candidate = candidates[i];
        // Each step is added apart and in this order: ties hang on the last bit.
        double score = rule.userWeight * Ratio(vocabulary->UserFrequency(candidate), totals.user) +
                       rule.weight * Ratio(vocabulary->Frequency(candidate), totals.general);
        if (const std::uint16_t mark = marks[candidate]; mark != 0) {
            const Successor& next = successors[mark - 1U];
            const double general = Ratio(Ratio(next.frequency, totals.generalPairs), previousShare);
            const double user = Ratio(Ratio(next.userFrequency, totals.userPairs), previousUserShare);
            score += rule.userPairWeight * user + rule.pairWeight * general;
        }
        if (!rule.classTerms.empty())
            score += rule.classTerms[vocabulary->ClassOf(candidate)];
        scores[i] = score;
    }
    UnmarkSuccessors();
}

void CandidateScores::MarkSuccessors(EntryId first) {
    bool ascending = vocabulary->Ascending();
    vocabulary->ForEachSuccessor(first, Vocabulary::kMaximumSuccessors, [&](const Successor& next) {
        if (!successors.empty() && vocabulary->Precedes(next.entry, successors.back().entry))
            ascending = false;
        successors.push_back(next);
    });
    if (ascending) {
        for (std::size_t i = successors.size(); i-- > 0;)
            marks[successors[i].entry] = static_cast<std::uint16_t>(i + 1);
        return;
    }

    // Files in disorder: what a search by text among the successors finds, which may be another or none.
    const auto textAt = [this](std::size_t i) {
        return vocabulary->TextOf(successors[i].entry);
    };
    for (const EntryId candidate : candidates) {
        const TextView text = vocabulary->TextOf(candidate);
        const std::size_t i = SearchPosition(successors.size(), text, textAt);
        if (i < successors.size() && textAt(i) == text)
            marks[candidate] = static_cast<std::uint16_t>(i + 1);
    }
}

void CandidateScores::UnmarkSuccessors() {
    for (const Successor& next : successors)
        marks[next.entry] = 0;
    if (!vocabulary->Ascending())
        for (const EntryId candidate : candidates)
            marks[candidate] = 0;
}

std::size_t CandidateScores::Best(std::size_t n, std::vector<DictionaryScore>& out) {
    SelectBest(scores, n, best);
    out.clear();
    for (const auto& [score, index] : best)
        out.push_back({vocabulary->TextOf(candidates[index]), score});
    return out.size();
}

} // namespace ondrilo
