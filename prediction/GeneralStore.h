#pragma once

#include "platform/FileStore.h"
#include "prediction/EntryReader.h"
#include "prediction/GeneralPairs.h"

#include <filesystem>
#include <map>
#include <memory>
#include <utility>

namespace ondrilo {

/// General files as they were last read, shared by all dictionaries that ask. A file is read again only if it
/// changed on disk. What was read stays here after the last dictionary let go of it, since a change of
/// profile clears one dictionary before it fills the next.
class GeneralStore {
  public:
    /// Null if the file cannot be opened.
    [[nodiscard]] std::shared_ptr<const GeneralEntries> Entries(const std::filesystem::path& path,
                                                                const EntryFormat& format);
    /// The pairs of these very entries; null if the file cannot be opened.
    [[nodiscard]] std::shared_ptr<const GeneralPairs>
    Pairs(const std::filesystem::path& path, const EntryFormat& format,
          const std::shared_ptr<const GeneralEntries>& entries);

  private:
    /// A path, and whether it was read as sentences.
    using Key = std::pair<std::filesystem::path, bool>;
    struct KeptEntries {
        FileIdentity identity;
        std::shared_ptr<const GeneralEntries> entries;
    };
    struct KeptPairs {
        FileIdentity identity;
        std::shared_ptr<const GeneralEntries> entries;
        std::shared_ptr<const GeneralPairs> pairs;
    };

    std::map<Key, KeptEntries> keptEntries;
    std::map<Key, KeptPairs> keptPairs;
};

} // namespace ondrilo
