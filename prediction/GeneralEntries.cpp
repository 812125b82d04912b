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

ClassId GeneralEntries::FindClass(const Text& name) const {
    const auto known = classIds.find(name);
    return known == classIds.end() ? 0 : known->second;
}

} // namespace ondrilo
