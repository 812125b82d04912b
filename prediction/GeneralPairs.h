#pragma once

#include "prediction/GeneralEntries.h"

#include <span>
#include <vector>

namespace ondrilo {

/// A successor as the general file tells it.
struct GeneralSuccessor {
    EntryId entry = kNoEntry;
    int frequency = 0;
};

/// A line of a general pair file whose two entries are known.
struct GeneralPair {
    EntryId first = kNoEntry;
    GeneralSuccessor successor;
};

/// What follows each entry in general texts, the successors of one entry in the order of the file. Never
/// changes, so that several profiles can share it.
class GeneralPairs {
  public:
    GeneralPairs() = default;
    GeneralPairs(std::size_t entries, std::span<const GeneralPair> pairs);

    [[nodiscard]] std::span<const GeneralSuccessor> Of(EntryId first) const {
        if (first + std::size_t{1} >= starts.size())
            return {};
        return std::span(successors).subspan(starts[first], starts[first + 1] - starts[first]);
    }
    /// True if those successors ascend by number.
    [[nodiscard]] bool AscendingOf(EntryId first) const {
        return first >= disordered.size() || !disordered[first];
    }
    [[nodiscard]] bool Empty() const { return successors.empty(); }
    /// Sum of the frequencies.
    [[nodiscard]] int Total() const { return total; }

  private:
    std::vector<std::uint32_t> starts;
    std::vector<GeneralSuccessor> successors;
    std::vector<bool> disordered;
    int total = 0;
};

} // namespace ondrilo
