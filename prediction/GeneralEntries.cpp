#include "prediction/GeneralEntries.h"

#include <algorithm>
#include <array>
#include <bit>
#include <functional>

namespace ondrilo {

void GeneralEntries::Add(TextView text, std::optional<int> frequency, TextView className) {
    if (Count() > 0 && text <= TextOf(static_cast<EntryId>(Count() - 1)))
        ascending = false;
    texts.Add(text);
    frequencies.push_back(frequency.value_or(0));
    total = WrappingSum(total, frequency.value_or(1));
    classes.push_back(Intern(className));
}

ClassId GeneralEntries::Intern(TextView className) {
    if (className.empty())
        return 0;
    const auto [known, isNew] =
        classIds.try_emplace(Text(className), static_cast<ClassId>(classNames.size()));
    if (isNew)
        classNames.emplace_back(className);
    return known->second;
}

void GeneralEntries::Finish() {
    slots.assign(std::bit_ceil(2 * Count() + 1), {});
    for (EntryId entry = 0; entry < Count(); ++entry) {
        const std::size_t hash = std::hash<TextView>()(TextOf(entry));
        std::size_t number = hash;
        while (SlotAt(number).entry != kNoEntry)
            ++number;
        slots[number & (slots.size() - 1)] = {TagOf(hash), entry};
    }
}

EntryId GeneralEntries::Find(TextView text) const {
    const std::size_t hash = std::hash<TextView>()(text);
    for (std::size_t number = hash;; ++number) {
        const auto [tag, entry] = SlotAt(number);
        if (entry == kNoEntry || (tag == TagOf(hash) && TextOf(entry) == text))
            return entry;
    }
}

void GeneralEntries::FindEach(std::span<const TextView> wanted, std::span<EntryId> found) const {
    // In rounds: what one text needs of the memory comes in while the others are looked at.
    constexpr std::size_t kRound = 64;
    std::array<std::size_t, kRound> hashes{};
    for (; !wanted.empty(); wanted = wanted.subspan(std::min(kRound, wanted.size()))) {
        const auto round = wanted.first(std::min(kRound, wanted.size()));
        for (std::size_t i = 0; i < round.size(); ++i) {
            hashes[i] = std::hash<TextView>()(round[i]);
            __builtin_prefetch(&SlotAt(hashes[i]));
        }
        for (std::size_t i = 0; i < round.size(); ++i) {
            found[i] = Candidate(hashes[i]);
            if (found[i] != kNoEntry)
                texts.Prefetch(found[i]);
        }
        for (std::size_t i = 0; i < round.size(); ++i)
            if (found[i] != kNoEntry)
                __builtin_prefetch(TextOf(found[i]).data());
        for (std::size_t i = 0; i < round.size(); ++i)
            if (found[i] != kNoEntry && TextOf(found[i]) != round[i])
                found[i] = Find(round[i]);
        found = found.subspan(round.size());
    }
}

EntryId GeneralEntries::Candidate(std::size_t hash) const {
    for (std::size_t number = hash;; ++number) {
        const auto [tag, entry] = SlotAt(number);
        if (entry == kNoEntry || tag == TagOf(hash))
            return entry;
    }
}

ClassId GeneralEntries::FindClass(const Text& name) const {
    const auto known = classIds.find(name);
    return known == classIds.end() ? 0 : known->second;
}

} // namespace ondrilo
