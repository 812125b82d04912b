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
    marked.reserve(Vocabulary::kMaximumSuccessors);
}

void CandidateScores::Start(const Vocabulary& newVocabulary) {
    vocabulary = &newVocabulary;
    candidates.clear();
    runs.clear();
    scores.clear();
}

void CandidateScores::CheckRoom(std::size_t further) const {
    if (candidates.size() + further > kCapacity)
        throw std::invalid_argument("too many candidates");
}

void CandidateScores::AddRun(Vocabulary::Run run) {
    CheckRoom(run.Size());
    if (run.Size() == 0)
        return;
    const std::size_t begin = candidates.size();
    vocabulary->Collect(run, candidates);
    runs.push_back({begin, candidates.size()});
}

void CandidateScores::AddSuccessorsOf(EntryId first) {
    if (first == kNoEntry)
        return;
    const Successors successors = vocabulary->SuccessorsOf(first).First(Vocabulary::kMaximumSuccessors);
    CheckRoom(successors.Size());
    if (successors.Size() == 0)
        return;
    runs.push_back({candidates.size(), candidates.size() + successors.Size()});
    for (std::size_t i = 0; i < successors.Size(); ++i)
        candidates.push_back(successors[i].entry);
}

void CandidateScores::Score(const ScoreRule& rule) {
    const VocabularyTotals& totals = rule.totals;
    double previousShare = 0;
    double previousUserShare = 0;
    Successors successors;
    if (rule.previous != kNoEntry) {
        successors = vocabulary->SuccessorsOf(rule.previous).First(Vocabulary::kMaximumSuccessors);
        MarkCandidates(successors);
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
            const Successor next = successors[mark - 1U];
            const double general = Ratio(Ratio(next.frequency, totals.generalPairs), previousShare);
            const double user = Ratio(Ratio(next.userFrequency, totals.userPairs), previousUserShare);
            score += rule.userPairWeight * user + rule.pairWeight * general;
        }
        if (!rule.classTerms.empty())
            score += rule.classTerms[vocabulary->ClassOf(candidate)];
        scores[i] = score;
    }
    for (const EntryId candidate : marked)
        marks[candidate] = 0;
    marked.clear();
}

void CandidateScores::MarkCandidates(const Successors& successors) {
    if (vocabulary->Ascending() && successors.Ascending())
        for (const auto& [begin, end] : runs)
            MarkRun(successors, candidates[begin], candidates[end - 1]);
    else
        MarkInDisorder(successors);
}

/// Looks only at the successors that lie between the first and the last candidate of a run, so that the cost
/// is that of the run and not of the successors.
void CandidateScores::MarkRun(const Successors& successors, EntryId first, EntryId last) {
    std::size_t low = 0;
    std::size_t high = successors.Size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (vocabulary->Precedes(successors[middle].entry, first))
            low = middle + 1;
        else
            high = middle;
    }
    for (std::size_t i = low; i < successors.Size(); ++i) {
        const EntryId next = successors[i].entry;
        if (vocabulary->Precedes(last, next))
            return;
        Mark(next, i);
    }
}

/// What the search by text among the successors finds, which in disorder may be another or none.
void CandidateScores::MarkInDisorder(const Successors& successors) {
    const auto textAt = [&](std::size_t i) {
        return vocabulary->TextOf(successors[i].entry);
    };
    for (const EntryId candidate : candidates) {
        const TextView text = vocabulary->TextOf(candidate);
        const std::size_t i = SearchPosition(successors.Size(), text, textAt);
        if (i < successors.Size() && textAt(i) == text)
            Mark(candidate, i);
    }
}

void CandidateScores::Mark(EntryId candidate, std::size_t successor) {
    // Of a pair that the file tells twice the first counts.
    if (marks[candidate] != 0)
        return;
    marks[candidate] = static_cast<std::uint16_t>(successor + 1);
    marked.push_back(candidate);
}

std::size_t CandidateScores::Best(std::size_t n, std::vector<DictionaryScore>& out) {
    SelectBest(scores, n, best);
    out.clear();
    for (const auto& [score, index] : best)
        out.push_back({vocabulary->TextOf(candidates[index]), score});
    return out.size();
}

} // namespace ondrilo
