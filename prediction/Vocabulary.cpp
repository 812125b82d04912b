#include "prediction/Vocabulary.h"

#include <algorithm>
#include <numeric>

namespace ondrilo {

void Vocabulary::Reset(std::shared_ptr<const GeneralEntries> entries) {
    general = std::move(entries);
    pairs = std::make_shared<const GeneralPairs>();
    added.clear();
    addedTexts = {};
    userFrequencies.assign(general->Count(), 0);
    ownLists.clear();
}

void Vocabulary::AppendGeneralPairs(std::span<const GeneralPair> appended) {
    for (const auto& [first, successor] : appended) {
        SuccessorList& list = MakeOwnList(first);
        if (!list.successors.empty() && Precedes(successor.entry, list.successors.back().entry))
            list.ascending = false;
        list.successors.push_back({successor.entry, successor.frequency, 0});
        ++list.generalCount;
    }
}

std::size_t Vocabulary::AddedBefore(std::size_t position) const {
    std::size_t low = 0;
    std::size_t high = added.size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (added[middle].before + middle < position)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

EntryId Vocabulary::At(std::size_t position) const {
    const std::size_t number = AddedBefore(position);
    if (number < added.size() && added[number].before + number == position)
        return added[number].entry;
    return static_cast<EntryId>(position - number);
}

std::size_t Vocabulary::PositionOf(EntryId generalEntry) const {
    const auto after =
        std::upper_bound(added.begin(), added.end(), generalEntry,
                         [](EntryId entry, const AddedEntry& own) { return entry < own.before; });
    return generalEntry + static_cast<std::size_t>(after - added.begin());
}

Vocabulary::Found Vocabulary::Find(TextView text) const {
    if (!general->Ascending())
        return FindInDisorder(text);
    if (const EntryId entry = general->Find(text); entry != kNoEntry)
        return {entry, PositionOf(entry)};

    const std::size_t number = AddedBefore(text);
    if (number < added.size() && TextOf(added[number].entry) == text)
        return {added[number].entry, added[number].before + number};
    const auto before = SearchPosition(
        general->Count(), text, [this](std::size_t at) { return general->TextOf(static_cast<EntryId>(at)); });
    return {kNoEntry, before + number};
}

std::size_t Vocabulary::AddedBefore(TextView text) const {
    const auto place = std::partition_point(added.begin(), added.end(),
                                            [&](const AddedEntry& own) { return TextOf(own.entry) < text; });
    return static_cast<std::size_t>(place - added.begin());
}

Vocabulary::Found Vocabulary::FindInDisorder(TextView text) const {
    const std::size_t position =
        SearchPosition(Count(), text, [this](std::size_t at) { return TextOf(At(at)); });
    if (position < Count())
        if (const EntryId entry = At(position); TextOf(entry) == text)
            return {entry, position};
    return {kNoEntry, position};
}

void Vocabulary::FindEach(std::span<const TextView> texts, std::span<EntryId> found) const {
    if (!general->Ascending()) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            found[i] = FindInDisorder(texts[i]).entry;
        return;
    }
    general->FindEach(texts, found);
    if (added.empty())
        return;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (found[i] != kNoEntry)
            continue;
        const std::size_t number = AddedBefore(texts[i]);
        if (number < added.size() && TextOf(added[number].entry) == texts[i])
            found[i] = added[number].entry;
    }
}

Vocabulary::Run Vocabulary::WithPrefix(TextView prefix) const {
    if (prefix.empty())
        return {};
    const Found found = Find(prefix);
    const std::size_t first = found.position + (found.entry == kNoEntry ? 0 : 1);
    const auto matches = [&](std::size_t position) {
        return TextOf(At(position)).starts_with(prefix);
    };

    std::size_t last = first;
    if (!general->Ascending()) {
        while (last < Count() && matches(last))
            ++last;
        return {first, last};
    }
    std::size_t end = Count();
    while (last < end) {
        const std::size_t middle = (last + end) / 2;
        if (matches(middle))
            last = middle + 1;
        else
            end = middle;
    }
    return {first, last};
}

void Vocabulary::Collect(Run run, std::vector<EntryId>& entries) const {
    std::size_t number = AddedBefore(run.first);
    for (std::size_t position = run.first; position < run.last;) {
        const std::size_t nextAdded = number < added.size() ? added[number].before + number : Count();
        const std::size_t stop = std::min(nextAdded, run.last);
        const std::size_t size = entries.size();
        entries.resize(size + stop - position);
        std::iota(entries.begin() + static_cast<std::ptrdiff_t>(size), entries.end(),
                  static_cast<EntryId>(position - number));
        if (stop < run.last)
            entries.push_back(added[number++].entry);
        position = stop + 1;
    }
}

void Vocabulary::Insert(std::size_t position, TextView text, int userFrequency) {
    const std::size_t number = AddedBefore(position);
    const auto entry = static_cast<EntryId>(general->Count() + addedTexts.Count());
    added.insert(added.begin() + static_cast<std::ptrdiff_t>(number),
                 {static_cast<EntryId>(position - number), entry});
    addedTexts.Add(text);
    userFrequencies.push_back(userFrequency);
}

bool Vocabulary::Precedes(EntryId left, EntryId right) const {
    const std::size_t count = general->Count();
    if (general->Ascending() && left < count && right < count)
        return left < right;
    return TextOf(left) < TextOf(right);
}

const Vocabulary::SuccessorList* Vocabulary::OwnList(EntryId first) const {
    const auto own = ownLists.find(first);
    return own == ownLists.end() ? nullptr : &own->second;
}

Vocabulary::SuccessorList& Vocabulary::MakeOwnList(EntryId first) {
    const auto [own, isNew] = ownLists.try_emplace(first);
    SuccessorList& list = own->second;
    if (!isNew)
        return list;
    const auto shared = pairs->Of(first);
    list.generalCount = shared.size();
    list.successors.reserve(shared.size() + 1);
    for (const GeneralSuccessor& successor : shared)
        list.successors.push_back({successor.entry, successor.frequency, 0});
    list.ascending = general->Ascending() && pairs->AscendingOf(first);
    return list;
}

void Vocabulary::AddUserSuccessor(EntryId first, EntryId second, int count) {
    SuccessorList& list = MakeOwnList(first);
    auto& successors = list.successors;
    const auto precedes = [&](const Successor& successor) {
        return Precedes(successor.entry, second);
    };
    // In a list that does not ascend the first that does not precede counts, wherever it stands.
    const auto place = list.ascending ? std::partition_point(successors.begin(), successors.end(), precedes)
                                      : std::find_if_not(successors.begin(), successors.end(), precedes);
    if (place != successors.end() && TextOf(place->entry) == TextOf(second))
        place->userFrequency = WrappingSum(place->userFrequency, count);
    else
        successors.insert(place, {second, 0, count});
}

int Vocabulary::GeneralSuccessorCount(EntryId first) const {
    const SuccessorList* own = OwnList(first);
    return static_cast<int>(own ? own->generalCount : pairs->Of(first).size());
}

} // namespace ondrilo
