#pragma once

#include "prediction/GeneralEntries.h"
#include "prediction/GeneralPairs.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace ondrilo {

/// A successor with its general and its user counter.
struct Successor {
    EntryId entry = kNoEntry;
    int frequency = 0;
    int userFrequency = 0;
};

/// The words, or the sentences, of one profile as one ascending whole: the general entries, which may be
/// shared with other profiles, and over them the profile's own counters, entries and pairs. Knows no files
/// and no totals.
class Vocabulary {
  public:
    static constexpr std::size_t kCapacity = 250'000;
    /// Most successors that a query looks at.
    static constexpr std::size_t kMaximumSuccessors = 10'000;

    Vocabulary() { Clear(); }

    void Clear() { Reset(std::make_shared<const GeneralEntries>()); }
    /// Begins anew over these general entries, without pairs and without anything of the user's.
    void Reset(std::shared_ptr<const GeneralEntries> entries);
    /// Appends each pair to the tail of its first entry's successors.
    void AppendGeneralPairs(std::span<const GeneralPair> pairs);

    /// Live entries, those with both counters 0 included.
    [[nodiscard]] std::size_t Count() const { return general->Count() + added.size(); }
    [[nodiscard]] EntryId At(std::size_t position) const;
    struct Found {
        EntryId entry = kNoEntry;
        std::size_t position = 0;
    };
    /// The entry and its position, or no entry and the position at which it would be inserted.
    [[nodiscard]] Found Find(TextView text) const;

    /// Positions first to last - 1.
    struct Run {
        std::size_t first = 0;
        std::size_t last = 0;
    };
    /// The entries that begin with `prefix`, but for one that equals it; an empty prefix gives none.
    [[nodiscard]] Run WithPrefix(TextView prefix) const;
    /// Appends the entries of a run in order.
    void Collect(Run run, std::vector<EntryId>& entries) const;

    [[nodiscard]] TextView TextOf(EntryId entry) const {
        return entry < general->Count() ? general->TextOf(entry) : addedTexts.Get(entry - general->Count());
    }
    [[nodiscard]] int Frequency(EntryId entry) const {
        return entry < general->Count() ? general->Frequency(entry) : 0;
    }
    [[nodiscard]] int UserFrequency(EntryId entry) const { return userFrequencies[entry]; }
    [[nodiscard]] ClassId ClassOf(EntryId entry) const {
        return entry < general->Count() ? general->ClassOf(entry) : 0;
    }
    [[nodiscard]] const Text& ClassName(ClassId id) const { return general->ClassNames()[id]; }
    [[nodiscard]] const std::vector<Text>& ClassNames() const { return general->ClassNames(); }

    /// Inserts an entry that Find did not find, at the position that it told.
    void Insert(std::size_t position, TextView text, int userFrequency);
    void SetUserFrequency(EntryId entry, int value) { userFrequencies[entry] = value; }
    /// Adds to the user counter of a successor, which is put in its place if it is new.
    void AddUserSuccessor(EntryId first, EntryId second, int count);

    /// All successors of an entry in ascending order (in the order of the file, where that does not ascend):
    /// calls visit(Successor), at most kMaximumSuccessors times.
    template <typename Visit>
    void ForEachSuccessor(EntryId first, Visit visit) const {
        if (const SuccessorList* own = OwnList(first)) {
            const std::size_t count = std::min(own->successors.size(), kMaximumSuccessors);
            for (std::size_t i = 0; i < count; ++i)
                visit(own->successors[i]);
            return;
        }
        const auto shared = pairs->Of(first);
        for (const GeneralSuccessor& successor : shared.first(std::min(shared.size(), kMaximumSuccessors)))
            visit(Successor{successor.entry, successor.frequency, 0});
    }
    /// Number of successors that came from the general file.
    [[nodiscard]] int GeneralSuccessorCount(EntryId first) const;

  private:
    /// The successors of an entry to which the user added something; holds the general ones too.
    struct SuccessorList {
        std::vector<Successor> successors;
        std::size_t generalCount = 0;
        bool ascending = true;
    };
    /// An entry that only the user has, before the general entry of that number.
    struct AddedEntry {
        EntryId before = 0;
        EntryId entry = 0;
    };

    [[nodiscard]] const SuccessorList* OwnList(EntryId first) const;
    SuccessorList& MakeOwnList(EntryId first);
    [[nodiscard]] std::size_t PositionOf(EntryId generalEntry) const;
    [[nodiscard]] bool Precedes(const Successor& successor, TextView text) const;
    [[nodiscard]] bool Untouched() const { return added.empty() && ownLists.empty() && pairs->Empty(); }

    std::shared_ptr<const GeneralEntries> general;
    std::shared_ptr<const GeneralPairs> pairs;
    std::vector<AddedEntry> added;
    TextPool addedTexts;
    /// By entry.
    std::vector<int> userFrequencies;
    std::unordered_map<EntryId, SuccessorList> ownLists;
};

} // namespace ondrilo
