#include "prediction/CAbbreviationExpansionSet.h"

#include "text/LineReader.h"

#include <algorithm>

namespace ondrilo {

CAbbreviationExpansionSet::~CAbbreviationExpansionSet() {
    (void)Save();
}

void CAbbreviationExpansionSet::Load(const std::filesystem::path& newPath) {
    path = newPath;
    changed = false;
    for (Bucket& bucket : buckets)
        bucket.clear();
    const FileBytes file = ReadFile(path);
    LineReader lines(file.bytes, kLineLimit);
    while (const auto line = lines.Next()) {
        FieldScanner fields(*line);
        const auto abbreviation = fields.Word();
        if (const auto expansion = fields.Tail())
            Put(*abbreviation, *expansion);
    }
}

SaveResult CAbbreviationExpansionSet::Save() {
    if (!changed || path.empty())
        return {};
    Text bytes;
    for (const auto& [abbreviation, expansion] : Entries())
        bytes.append(abbreviation).append(" ").append(expansion).append("\n");
    SaveResult saved = ReplaceFile(path, bytes);
    if (saved)
        changed = false;
    return saved;
}

std::optional<Text> CAbbreviationExpansionSet::Find(TextView abbreviation) const {
    for (const auto& [known, expansion] : buckets[BucketOf(abbreviation)])
        if (known == abbreviation)
            return expansion;
    return std::nullopt;
}

void CAbbreviationExpansionSet::Set(TextView abbreviation, TextView expansion) {
    Put(abbreviation, expansion);
    changed = true;
}

void CAbbreviationExpansionSet::Remove(TextView abbreviation) {
    if (Erase(abbreviation))
        changed = true;
}

std::vector<std::pair<Text, Text>> CAbbreviationExpansionSet::Entries() const {
    std::vector<std::pair<Text, Text>> entries;
    for (const Bucket& bucket : buckets)
        entries.insert(entries.end(), bucket.begin(), bucket.end());
    return entries;
}

void CAbbreviationExpansionSet::Put(TextView abbreviation, TextView expansion) {
    Erase(abbreviation);
    buckets[BucketOf(abbreviation)].emplace_back(abbreviation, expansion);
}

bool CAbbreviationExpansionSet::Erase(TextView abbreviation) {
    return std::erase_if(buckets[BucketOf(abbreviation)],
                         [abbreviation](const auto& entry) { return entry.first == abbreviation; }) > 0;
}

std::size_t CAbbreviationExpansionSet::BucketOf(TextView abbreviation) {
    std::uint32_t hash = 0;
    for (const char c : abbreviation)
        hash = hash * 33 + static_cast<unsigned char>(c);
    return hash % kBuckets;
}

} // namespace ondrilo
