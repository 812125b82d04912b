#include "prediction/GeneralEntries.h"

#include <bit>
#include <functional>

namespace ondrilo {

void GeneralEntries::Add(TextView text, int frequency, TextView className) {
    if (Count() > 0 && text <= TextOf(static_cast<EntryId>(Count() - 1)))
        ascending = false;
    texts.Add(text);
    frequencies.push_back(frequency);
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
    slots.assign(std::bit_ceil(2 * Count() + 1), kNoEntry);
    for (EntryId entry = 0; entry < Count(); ++entry) {
        std::size_t slot = FirstSlot(TextOf(entry));
        while (slots[slot] != kNoEntry)
            slot = NextSlot(slot);
        slots[slot] = entry;
    }
}

EntryId GeneralEntries::Find(TextView text) const {
    std::size_t slot = FirstSlot(text);
    while (slots[slot] != kNoEntry && TextOf(slots[slot]) != text)
        slot = NextSlot(slot);
    return slots[slot];
}

std::size_t GeneralEntries::FirstSlot(TextView text) const {
    return std::hash<TextView>()(text) & (slots.size() - 1);
}

ClassId GeneralEntries::FindClass(const Text& name) const {
    const auto known = classIds.find(name);
    return known == classIds.end() ? 0 : known->second;
}

} // namespace ondrilo
