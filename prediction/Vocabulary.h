#pragma once

#include "prediction/GeneralEntries.h"
#include "prediction/GeneralPairs.h"

#include <algorithm>
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

/// The successors of one entry, in ascending order unless the general file is in disorder. A view, valid
/// until the vocabulary next changes.
class Successors {
  public:
    Successors() = default;
    Successors(std::span<const GeneralSuccessor> shared, bool ascending)
        : shared(shared), ascending(ascending) {}
    Successors(std::span<const Successor> own, bool ascending) : own(own), ascending(ascending) {}

    [[nodiscard]] std::size_t Size() const { return own.size() + shared.size(); }
    [[nodiscard]] Successor operator[](std::size_t i) const {
        return own.empty() ? Successor{shared[i].entry, shared[i].frequency, 0} : own[i];
    }
    [[nodiscard]] bool Ascending() const { return ascending; }
    [[nodiscard]] Successors First(std::size_t most) const {
        return own.empty() ? Successors(shared.first(std::min(most, shared.size())), ascending)
                           : Successors(own.first(std::min(most, own.size())), ascending);
    }

  private:
    // One of the two is empty.
    std::span<const GeneralSuccessor> shared;
    std::span<const Successor> own;
    bool ascending = true;
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
    /// True while all is as after Reset.
    [[nodiscard]] bool Untouched() const { return added.empty() && ownLists.empty() && pairs->Empty(); }
    /// Only while untouched: pairs of these general entries.
    void SetGeneralPairs(std::shared_ptr<const GeneralPairs> shared) { pairs = std::move(shared); }
    /// Appends each pair to the tail of its first entry's successors.
    void AppendGeneralPairs(std::span<const GeneralPair> appended);

    [[nodiscard]] const std::shared_ptr<const GeneralEntries>& General() const { return general; }

    /// Live entries, those with both counters 0 included.
    [[nodiscard]] std::size_t Count() const { return general->Count() + added.size(); }
    [[nodiscard]] EntryId At(std::size_t position) const;
    struct Found {
        EntryId entry = kNoEntry;
        std::size_t position = 0;
    };
    /// The entry and its position, or no entry and the position at which it would be inserted.
    [[nodiscard]] Found Find(TextView text) const;
    /// The entries of many texts at once, which is far faster than one by one.
    void FindEach(std::span<const TextView> texts, std::span<EntryId> found) const;

    /// Positions first to last - 1.
    struct Run {
        std::size_t first = 0;
        std::size_t last = 0;
        [[nodiscard]] std::size_t Size() const { return last - first; }
    };
    [[nodiscard]] Run All() const { return {0, Count()}; }
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
    /// The names of all classes, by number.
    [[nodiscard]] const std::vector<Text>& ClassNames() const { return general->ClassNames(); }
    /// 0 for a name that no entry has.
    [[nodiscard]] ClassId FindClass(const Text& name) const { return general->FindClass(name); }

    /// Inserts an entry that Find did not find, at the position that it told.
    void Insert(std::size_t position, TextView text, int userFrequency);
    void SetUserFrequency(EntryId entry, int value) { userFrequencies[entry] = value; }
    /// Adds to the user counter of a successor, which is put in its place if it is new.
    void AddUserSuccessor(EntryId first, EntryId second, int count);

    /// All successors of an entry.
    [[nodiscard]] Successors SuccessorsOf(EntryId first) const {
        if (const SuccessorList* own = OwnList(first))
            return {own->successors, own->ascending};
        return {pairs->Of(first), general->Ascending() && pairs->AscendingOf(first)};
    }
    /// Number of successors that came from the general file.
    [[nodiscard]] int GeneralSuccessorCount(EntryId first) const;

    /// True if the entries are strictly ascending, as they are unless the general file is not.
    [[nodiscard]] bool Ascending() const { return general->Ascending(); }
    /// Order of texts, without looking at them where the numbers tell.
    [[nodiscard]] bool Precedes(EntryId left, EntryId right) const;

  private:
    /// The successors of an entry to which the user added something; holds the general ones too.
    struct SuccessorList {
        std::vector<Successor> successors;
        std::size_t generalCount = 0;
        bool ascending = true;
    };
    /// An entry that only the user has; it stands before the general entry of that number.
    struct AddedEntry {
        EntryId before = 0;
        EntryId entry = 0;
    };

    /// How many of the added entries stand before a position, and before a text.
    [[nodiscard]] std::size_t AddedBefore(std::size_t position) const;
    [[nodiscard]] std::size_t AddedBefore(TextView text) const;
    [[nodiscard]] std::size_t PositionOf(EntryId generalEntry) const;
    /// The one search over the whole, which finds in disordered entries what it happens to come upon.
    [[nodiscard]] Found FindInDisorder(TextView text) const;
    [[nodiscard]] const SuccessorList* OwnList(EntryId first) const;
    SuccessorList& MakeOwnList(EntryId first);

    std::shared_ptr<const GeneralEntries> general;
    std::shared_ptr<const GeneralPairs> pairs;
    /// In their order; a position in the whole follows from `before` and the index here.
    std::vector<AddedEntry> added;
    TextPool addedTexts;
    /// By entry.
    std::vector<int> userFrequencies;
    std::unordered_map<EntryId, SuccessorList> ownLists;
};

} // namespace ondrilo
