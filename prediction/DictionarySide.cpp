#include "prediction/DictionarySide.h"

#include "text/LineReader.h"
#include "text/NormalForm.h"

namespace ondrilo {
namespace {

/// A line of an entry file: text, text and number, or text, number and class.
struct EntryLine {
    TextView text;
    std::optional<int> frequency;
    TextView className;
};

std::optional<EntryLine> ParseEntry(TextView line) {
    FieldScanner fields(line);
    const auto text = fields.Word();
    if (!text)
        return std::nullopt;
    EntryLine entry{*text, fields.Integer(), {}};
    if (entry.frequency)
        entry.className = fields.Word().value_or(TextView());
    return entry;
}

} // namespace

Text DictionarySide::LoadGeneral(const std::filesystem::path& path) {
    entries.Clear();
    totals.general = 0;
    generalPath = path;
    const FileBytes file = ReadFile(generalPath);
    if (!file.CouldOpen())
        return Text(rules.noGeneral);

    auto general = std::make_shared<GeneralEntries>();
    LineReader lines(file.bytes, rules.lineLimit);
    while (const auto line = lines.Next()) {
        if (general->Count() == Vocabulary::kCapacity)
            break;
        const auto entry = ParseEntry(*line);
        if (!entry)
            continue;
        general->Add(StoredForm(BarsToBlanks(entry->text)), entry->frequency.value_or(0),
                     rules.sentences ? TextView() : entry->className);
        // A bare entry has no frequency, yet it counts once in the total.
        totals.general = WrappingSum(totals.general, entry->frequency.value_or(1));
    }
    general->Finish();
    entries.Reset(std::move(general));
    return {};
}

Text DictionarySide::LoadGeneralPairs(const std::filesystem::path& path) {
    totals.generalPairs = 0;
    generalPairsPath = path;
    const FileBytes file = ReadFile(generalPairsPath);
    if (!file.CouldOpen())
        return Text(rules.noGeneralPairs);

    std::vector<GeneralPair> pairs;
    pairs.reserve(static_cast<std::size_t>(std::count(file.bytes.begin(), file.bytes.end(), '\n')) + 1);
    ForEachKnownPair(file.bytes, [&](EntryId first, EntryId second, int count) {
        pairs.push_back({first, {second, count}});
        totals.generalPairs = WrappingSum(totals.generalPairs, count);
    });
    entries.AppendGeneralPairs(pairs);
    return {};
}

Text DictionarySide::LoadUser(const std::filesystem::path& path) {
    totals.user = 0;
    userPath = path;
    const FileBytes file = ReadFile(userPath);
    if (!file.CouldOpen())
        return Text(rules.noUser);

    LineReader lines(file.bytes, rules.lineLimit);
    while (const auto line = lines.Next())
        if (const auto entry = ParseEntry(*line))
            AddUser(BarsToBlanks(entry->text), entry->frequency.value_or(1));
    userChanged = false;
    return {};
}

Text DictionarySide::LoadUserPairs(const std::filesystem::path& path) {
    totals.userPairs = 0;
    userPairsPath = path;
    const FileBytes file = ReadFile(userPairsPath);
    if (!file.CouldOpen())
        return Text(rules.noUserPairs);

    ForEachKnownPair(file.bytes, [this](EntryId first, EntryId second, int count) {
        entries.AddUserSuccessor(first, second, count);
        totals.userPairs = WrappingSum(totals.userPairs, count);
    });
    userPairsChanged = false;
    return {};
}

std::vector<Text> DictionarySide::Reload() {
    std::vector<Text> messages{LoadGeneral(generalPath), LoadGeneralPairs(generalPairsPath),
                               LoadUser(userPath), LoadUserPairs(userPairsPath)};
    std::erase(messages, Text());
    return messages;
}

/// Reads a pair file field by field, not line by line; a record whose number is missing is left out and the
/// next one begins where its number should stand.
template <typename Visit>
void DictionarySide::ForEachKnownPair(TextView bytes, Visit visit) const {
    FieldScanner fields(bytes);
    Text entryText;
    Text storedText;
    const auto find = [&](TextView token) {
        entryText.assign(token);
        std::replace(entryText.begin(), entryText.end(), '|', ' ');
        if (!rules.sentences)
            return entries.Find(entryText).entry;
        NormalizeSentence(entryText, storedText);
        return entries.Find(storedText).entry;
    };
    TextView previous;
    EntryId first = kNoEntry;
    while (const auto firstToken = fields.Word(rules.tokenLimit)) {
        const auto secondToken = fields.Word(rules.tokenLimit);
        const auto count = fields.Integer();
        if (!secondToken || !count)
            continue;
        // The files are grouped by first entry.
        if (*firstToken != previous) {
            previous = *firstToken;
            first = find(previous);
        }
        if (first == kNoEntry)
            continue;
        if (const EntryId second = find(*secondToken); second != kNoEntry)
            visit(first, second, *count);
    }
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

Text DictionarySide::StoredForm(TextView text) const {
    return rules.sentences ? NormalizeSentence(text) : Text(text);
}

Text DictionarySide::FormOnFile(EntryId entry) const {
    return BlanksToBars(entries.TextOf(entry));
}

} // namespace ondrilo
