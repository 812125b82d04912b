#include "prediction/GeneralPairs.h"

#include <algorithm>
#include <numeric>

namespace ondrilo {

GeneralPairs::GeneralPairs(std::size_t entries, std::span<const GeneralPair> pairs)
    : starts(entries + 1), successors(pairs.size()), disordered(entries) {
    // Counting sort by first entry, which keeps the order within one.
    for (const GeneralPair& pair : pairs)
        ++starts[pair.first + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    auto next = starts;
    for (const GeneralPair& pair : pairs) {
        successors[next[pair.first]++] = pair.successor;
        total = WrappingSum(total, pair.successor.frequency);
    }

    const auto descends = [](const GeneralSuccessor& left, const GeneralSuccessor& right) {
        return right.entry < left.entry;
    };
    for (EntryId first = 0; first < entries; ++first) {
        const auto own = Of(first);
        disordered[first] = std::adjacent_find(own.begin(), own.end(), descends) != own.end();
    }
}

} // namespace ondrilo
