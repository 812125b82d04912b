#include "prediction/DictionarySide.h"

#include "prediction/EntryReader.h"
#include "prediction/PairReader.h"
#include "text/LineReader.h"

namespace ondrilo {

Text DictionarySide::LoadGeneral(const std::filesystem::path& path) {
    entries.Clear();
    totals.general = 0;
    generalPath = path;
    auto general = store.Entries(generalPath, rules.format);
    if (!general)
        return Text(rules.noGeneral);
    totals.general = general->Total();
    entries.Reset(std::move(general));
    return {};
}

Text DictionarySide::LoadGeneralPairs(const std::filesystem::path& path) {
    totals.generalPairs = 0;
    generalPairsPath = path;
    if (!entries.Untouched())
        return AppendGeneralPairs();
    auto pairs = store.Pairs(generalPairsPath, rules.format, entries.General());
    if (!pairs)
        return Text(rules.noGeneralPairs);
    totals.generalPairs = pairs->Total();
    entries.SetGeneralPairs(std::move(pairs));
    return {};
}

Text DictionarySide::AppendGeneralPairs() {
    const FileBytes file = ReadFile(generalPairsPath);
    if (!file.CouldOpen())
        return Text(rules.noGeneralPairs);
    std::vector<GeneralPair> pairs;
    PairReader reader(file.bytes, rules.format, entries);
    for (auto read = reader.Next(); !read.empty(); read = reader.Next())
        pairs.insert(pairs.end(), read.begin(), read.end());
    for (const GeneralPair& pair : pairs)
        totals.generalPairs = WrappingSum(totals.generalPairs, pair.successor.frequency);
    entries.AppendGeneralPairs(pairs);
    return {};
}

Text DictionarySide::LoadUser(const std::filesystem::path& path) {
    totals.user = 0;
    userPath = path;
    const FileBytes file = ReadFile(userPath);
    if (!file.CouldOpen())
        return Text(rules.noUser);

    EntryReader reader(file.bytes, rules.format);
    while (const auto entry = reader.Next())
        AddUser(entry->text, entry->frequency.value_or(1));
    userChanged = false;
    return {};
}

Text DictionarySide::LoadUserPairs(const std::filesystem::path& path) {
    totals.userPairs = 0;
    userPairsPath = path;
    const FileBytes file = ReadFile(userPairsPath);
    if (!file.CouldOpen())
        return Text(rules.noUserPairs);

    PairReader reader(file.bytes, rules.format, entries);
    for (auto read = reader.Next(); !read.empty(); read = reader.Next())
        for (const auto& [first, successor] : read) {
            entries.AddUserSuccessor(first, successor.entry, successor.frequency);
            totals.userPairs = WrappingSum(totals.userPairs, successor.frequency);
        }
    userPairsChanged = false;
    return {};
}

std::vector<Text> DictionarySide::Reload() {
    std::vector<Text> messages{LoadGeneral(generalPath), LoadGeneralPairs(generalPairsPath),
                               LoadUser(userPath), LoadUserPairs(userPairsPath)};
    std::erase(messages, Text());
    return messages;
}

SaveResult DictionarySide::SaveUser() {
    if (!userChanged || userPath.empty())
        return {};
    std::vector<EntryId> all;
    entries.Collect(entries.All(), all);
    Text bytes;
    for (const EntryId entry : all)
        if (const int frequency = entries.UserFrequency(entry); frequency != 0)
            bytes += FormOnFile(entry) + " " + std::to_string(frequency) + "\n";

    SaveResult saved = ReplaceFile(userPath, bytes);
    if (saved)
        userChanged = false;
    return saved;
}

SaveResult DictionarySide::SaveUserPairs() {
    if (!(userPairsChanged || userChanged) || userPairsPath.empty())
        return {};
    std::vector<EntryId> all;
    entries.Collect(entries.All(), all);
    Text bytes;
    for (const EntryId first : all) {
        if (entries.UserFrequency(first) == 0)
            continue;
        const Text firstOnFile = FormOnFile(first);
        const Successors successors = entries.SuccessorsOf(first);
        std::size_t taken = 0;
        for (std::size_t i = 0; i < successors.Size() && taken < Vocabulary::kMaximumSuccessors; ++i) {
            const Successor next = successors[i];
            if (next.userFrequency == 0)
                continue;
            ++taken;
            // A pair dies with either of its entries.
            if (entries.UserFrequency(next.entry) > 0)
                bytes += firstOnFile + " " + FormOnFile(next.entry) + " " +
                         std::to_string(next.userFrequency) + "\n";
        }
    }

    SaveResult saved = ReplaceFile(userPairsPath, bytes);
    if (saved)
        userPairsChanged = false;
    return saved;
}

void DictionarySide::Clear() {
    entries.Clear();
    totals.general = totals.user = 0;
    userChanged = false;
    // Without their paths the pairs cannot be saved, or an emptied dictionary would empty the file.
    for (auto* path : {&generalPath, &generalPairsPath, &userPath, &userPairsPath})
        path->clear();
}

void DictionarySide::AddUser(TextView text, int count) {
    const Text stored = StoredForm(text);
    // An entry of nothing would be written as its counter alone and come back as a text of digits.
    if (stored.empty() || stored.size() >= rules.lengthLimit)
        return;
    userChanged = true;
    const auto [entry, position] = entries.Find(stored);
    if (entry != kNoEntry)
        entries.SetUserFrequency(entry, WrappingSum(entries.UserFrequency(entry), count));
    else if (entries.Count() < Vocabulary::kCapacity)
        entries.Insert(position, stored, count);
    else
        return;
    totals.user = WrappingSum(totals.user, count);
}

void DictionarySide::AddUserPair(TextView first, TextView second, int count) {
    const Text storedFirst = StoredForm(first);
    const Text storedSecond = StoredForm(second);
    if (storedFirst.size() >= rules.lengthLimit || storedSecond.size() >= rules.lengthLimit)
        return;
    userPairsChanged = true;
    const EntryId firstEntry = entries.Find(storedFirst).entry;
    const EntryId secondEntry = entries.Find(storedSecond).entry;
    if (firstEntry == kNoEntry || secondEntry == kNoEntry)
        return;
    entries.AddUserSuccessor(firstEntry, secondEntry, count);
    totals.userPairs = WrappingSum(totals.userPairs, count);
}

bool DictionarySide::SetUserFrequency(TextView text, int value) {
    const EntryId entry = Find(text).entry;
    if (entry == kNoEntry)
        return false;
    ChangeUserFrequency(entry, value);
    return true;
}

void DictionarySide::ChangeUserFrequency(EntryId entry, int value) {
    totals.user = WrappingDifference(totals.user, entries.UserFrequency(entry));
    entries.SetUserFrequency(entry, value);
    totals.user = WrappingSum(totals.user, value);
    userChanged = true;
}

void DictionarySide::RemoveRarest() {
    const auto count = static_cast<EntryId>(entries.Count());
    std::optional<int> rarest;
    for (EntryId entry = 0; entry < count; ++entry)
        if (const int frequency = entries.UserFrequency(entry);
            frequency != 0 && (!rarest || frequency < *rarest))
            rarest = frequency;
    if (!rarest)
        return;
    for (EntryId entry = 0; entry < count; ++entry)
        if (entries.UserFrequency(entry) == *rarest)
            ChangeUserFrequency(entry, 0);
}

Text DictionarySide::FormOnFile(EntryId entry) const {
    return BlanksToBars(entries.TextOf(entry));
}

} // namespace ondrilo
