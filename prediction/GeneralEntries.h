#pragma once

#include "prediction/TextPool.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace ondrilo {

/// Number of an entry within its vocabulary; does not change while the vocabulary is loaded.
using EntryId = std::uint32_t;
inline constexpr EntryId kNoEntry = std::numeric_limits<EntryId>::max();

/// Number of a word class within its vocabulary; 0 is the class of the words that have none.
using ClassId = std::uint32_t;

/// Counters have 32 bits, and files may hold any number: sums wrap instead of being undefined.
inline int WrappingSum(int left, int right) {
    return static_cast<int>(static_cast<unsigned>(left) + static_cast<unsigned>(right));
}

inline int WrappingDifference(int left, int right) {
    return static_cast<int>(static_cast<unsigned>(left) - static_cast<unsigned>(right));
}

/// Position in `count` ascending texts at which `text` stands or would be inserted. Texts that do not ascend
/// lead the search astray in a fixed way, never out of bounds.
template <typename TextAt>
std::size_t SearchPosition(std::size_t count, TextView text, TextAt textAt) {
    if (count == 0)
        return 0;
    std::size_t low = 0;
    std::size_t high = count - 1;
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (text <= textAt(middle))
            high = middle;
        else
            low = middle + 1;
    }
    return text <= textAt(low) ? low : low + 1;
}

/// The words or sentences of one general file, in the order of the file, which should be ascending; the
/// number of an entry is its position. Filled once; afterwards nothing changes it, so that profiles can share
/// it.
class GeneralEntries {
  public:
    GeneralEntries() { Finish(); }

    /// An entry without a frequency has 0, yet it counts once in the total.
    void Add(TextView text, std::optional<int> frequency, TextView className = {});
    /// To be called once all entries are in.
    void Finish();

    [[nodiscard]] std::size_t Count() const { return texts.Count(); }
    [[nodiscard]] TextView TextOf(EntryId entry) const { return texts.Get(entry); }
    [[nodiscard]] int Frequency(EntryId entry) const { return frequencies[entry]; }
    [[nodiscard]] ClassId ClassOf(EntryId entry) const { return classes[entry]; }
    /// The names of all classes, by number; the first is empty.
    [[nodiscard]] const std::vector<Text>& ClassNames() const { return classNames; }
    /// 0 for a name that no entry has.
    [[nodiscard]] ClassId FindClass(const Text& name) const;
    /// Sum of the frequencies.
    [[nodiscard]] int Total() const { return total; }
    /// True if the entries are strictly ascending, so that order of numbers is order of texts.
    [[nodiscard]] bool Ascending() const { return ascending; }
    /// The entry of that text, or kNoEntry; of equal texts the first.
    [[nodiscard]] EntryId Find(TextView text) const;
    /// The same for many texts, which hardly costs more than the first: `found[i]` for `texts[i]`.
    void FindEach(std::span<const TextView> texts, std::span<EntryId> found) const;

  private:
    struct Slot {
        /// Upper half of the hash, which spares most comparisons of texts.
        std::uint32_t tag = 0;
        EntryId entry = kNoEntry;
    };

    ClassId Intern(TextView className);
    /// The first entry whose text could have that hash, or kNoEntry.
    [[nodiscard]] EntryId Candidate(std::size_t hash) const;
    static std::uint32_t TagOf(std::size_t hash) { return static_cast<std::uint32_t>(hash >> 32); }
    [[nodiscard]] const Slot& SlotAt(std::size_t number) const { return slots[number & (slots.size() - 1)]; }

    TextPool texts;
    std::vector<int> frequencies;
    std::vector<ClassId> classes;
    std::vector<Text> classNames{Text()};
    std::unordered_map<Text, ClassId> classIds;
    bool ascending = true;
    int total = 0;
    /// Open addressing by the hash of the text, at most half full.
    std::vector<Slot> slots;
};

} // namespace ondrilo
