#include "prediction/GeneralPairs.h"

#include <numeric>

namespace ondrilo {

GeneralPairs::GeneralPairs(std::size_t entries, std::span<const GeneralPair> pairs)
    : starts(entries + 1), successors(pairs.size()) {
    // Counting sort by first entry, which keeps the order within one.
    for (const GeneralPair& pair : pairs)
        ++starts[pair.first + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    auto next = starts;
    for (const GeneralPair& pair : pairs)
        successors[next[pair.first]++] = pair.successor;
}

} // namespace ondrilo
