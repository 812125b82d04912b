#pragma once

#include "text/Text.h"

#include <filesystem>
#include <vector>

namespace ondrilo {

/// How much to generate.
struct DataSize {
    std::size_t words = 250'000;
    std::size_t wordPairs = 2'000'000;
    std::size_t sentences = 100'000;
    std::size_t sentencePairs = 500'000;
    /// Of each kind, half known to the general files.
    std::size_t userEntries = 20'000;
    std::size_t userPairs = 50'000;
};

/// The dictionary files of a person "bench", made up from syllables: frequencies fall as in a language, some
/// initials are far more common than others, a few words are followed by thousands of others. The same size
/// gives the same bytes.
class GeneratedData {
  public:
    /// Writes the files into a temporary folder of their own, removed with this.
    explicit GeneratedData(const DataSize& size);
    GeneratedData(const GeneratedData&) = delete;
    GeneratedData& operator=(const GeneratedData&) = delete;
    ~GeneratedData();

    [[nodiscard]] const std::filesystem::path& Folder() const { return folder; }
    [[nodiscard]] static TextView ProfileName() { return "bench"; }
    /// Entries by falling number of successors.
    [[nodiscard]] const std::vector<Text>& CommonWords() const { return commonWords; }
    [[nodiscard]] const std::vector<Text>& CommonSentences() const { return commonSentences; }

    /// The data in full size, made at first use.
    static const GeneratedData& Full();

  private:
    std::filesystem::path folder;
    std::vector<Text> commonWords;
    std::vector<Text> commonSentences;
};

} // namespace ondrilo
