#pragma once

#include "platform/FileStore.h"
#include "text/Text.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

namespace ondrilo {

/// The abbreviations of a profile with their full texts. Matching is exact: case and accents count. The file
/// is written in the order of a fixed hash, so that it stays stable between runs.
class CAbbreviationExpansionSet {
  public:
    /// Most characters of a line of the file: abbreviation, one blank, expansion.
    static constexpr std::size_t kLineLimit = 79;

    CAbbreviationExpansionSet() = default;
    CAbbreviationExpansionSet(const CAbbreviationExpansionSet&) = delete;
    CAbbreviationExpansionSet& operator=(const CAbbreviationExpansionSet&) = delete;
    /// Saves what changed, without telling of a failure.
    ~CAbbreviationExpansionSet();

    /// Reads the set anew; a file that cannot be opened is an empty set.
    void Load(const std::filesystem::path& path);
    void Reload() { Load(path); }
    /// Writes the file if something changed. On failure it stays marked as changed.
    SaveResult Save();

    [[nodiscard]] std::optional<Text> Find(TextView abbreviation) const;
    void Set(TextView abbreviation, TextView expansion);
    void Remove(TextView abbreviation);

    [[nodiscard]] bool Changed() const { return changed; }
    /// All entries in the order of the file.
    [[nodiscard]] std::vector<std::pair<Text, Text>> Entries() const;

  private:
    using Bucket = std::vector<std::pair<Text, Text>>;
    static constexpr std::size_t kBuckets = 17;

    [[nodiscard]] static std::size_t BucketOf(TextView abbreviation);
    bool Erase(TextView abbreviation);
    void Put(TextView abbreviation, TextView expansion);

    std::array<Bucket, kBuckets> buckets;
    std::filesystem::path path;
    bool changed = false;
};

} // namespace ondrilo
