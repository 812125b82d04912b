#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ondrilo {

struct SelectedScore {
    double score = 0;
    /// Index in the scores given.
    std::uint32_t index = 0;
};

/// Fills `best` with at most `n` of the scores, best first; 0 gives nothing. A score goes before the first
/// that is not above it, so of equal ones the later comes first; once the list is full, only a score strictly
/// above the last gets in, and the last falls out. Not-a-number is above nothing and goes to the tail. `best`
/// keeps its storage between calls.
void SelectBest(std::span<const double> scores, std::size_t n, std::vector<SelectedScore>& best);

} // namespace ondrilo
