#include "prediction/GeneralStore.h"

#include "prediction/PairReader.h"

#include <algorithm>

namespace ondrilo {
namespace {

std::shared_ptr<const GeneralEntries> ReadEntries(TextView bytes, const EntryFormat& format) {
    auto entries = std::make_shared<GeneralEntries>();
    EntryReader reader(bytes, format);
    while (const auto line = reader.Next()) {
        if (entries->Count() == Vocabulary::kCapacity)
            break;
        entries->Add(format.StoredForm(line->text), line->frequency,
                     format.sentences ? TextView() : line->className);
    }
    entries->Finish();
    return entries;
}

std::shared_ptr<const GeneralPairs> ReadPairs(TextView bytes, const EntryFormat& format,
                                              const std::shared_ptr<const GeneralEntries>& entries) {
    Vocabulary vocabulary;
    vocabulary.Reset(entries);
    std::vector<GeneralPair> pairs;
    pairs.reserve(static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) + 1);
    PairReader reader(bytes, format, vocabulary);
    for (auto read = reader.Next(); !read.empty(); read = reader.Next())
        pairs.insert(pairs.end(), read.begin(), read.end());
    return std::make_shared<const GeneralPairs>(entries->Count(), pairs);
}

} // namespace

std::shared_ptr<const GeneralEntries> GeneralStore::Entries(const std::filesystem::path& path,
                                                            const EntryFormat& format) {
    KeptEntries& kept = keptEntries[{path, format.sentences}];
    const FileBytes file = ReadFile(path, kept.identity);
    if (file.state != ReadState::Unchanged)
        kept = {file.identity, file.CouldOpen() ? ReadEntries(file.bytes, format) : nullptr};
    return kept.entries;
}

std::shared_ptr<const GeneralPairs>
GeneralStore::Pairs(const std::filesystem::path& path, const EntryFormat& format,
                    const std::shared_ptr<const GeneralEntries>& entries) {
    KeptPairs& kept = keptPairs[{path, format.sentences}];
    if (kept.entries != entries)
        kept = {};
    const FileBytes file = ReadFile(path, kept.identity);
    if (file.state != ReadState::Unchanged)
        kept = {file.identity, entries, file.CouldOpen() ? ReadPairs(file.bytes, format, entries) : nullptr};
    return kept.pairs;
}

} // namespace ondrilo
