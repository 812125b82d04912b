#include "prediction/BestSelection.h"

#include <algorithm>

namespace ondrilo {

void SelectBest(std::span<const double> scores, std::size_t n, std::vector<SelectedScore>& best) {
    best.clear();
    best.reserve(std::min(n, scores.size()));
    if (n == 0)
        return;
    for (std::uint32_t index = 0; index < scores.size(); ++index) {
        const double score = scores[index];
        if (best.size() == n) {
            if (!(score > best.back().score))
                continue;
            best.pop_back();
        }
        // Not a binary search: among not-a-numbers the list is not sorted.
        const auto place = std::find_if(best.begin(), best.end(),
                                        [score](const SelectedScore& taken) { return score >= taken.score; });
        best.insert(place, {score, index});
    }
}

} // namespace ondrilo
