#pragma once

#include "platform/FileStore.h"
#include "text/Text.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>

namespace ondrilo {

/// Counts running text into the general dictionary files, with the rules by which the program itself splits
/// and learns: folded words, word pairs that cross sentence ends (as the previous word of a prediction does)
/// but no lines, normalised sentences. "___" stands before the first word of each sentence and before the
/// first sentence of each line. The same texts always give the same bytes.
class VocabularyBuilder {
  public:
    /// One utterance. `withSentences` false: only its words and pairs count.
    void AddLine(TextView line, bool withSentences);

    /// Writes geral.pal, .par, .cg, .pcg, .frs and .paf, sorted as the readers need them.
    SaveResult Write(const std::filesystem::path& folder) const;
    /// One line of figures.
    [[nodiscard]] std::string Report() const;

  private:
    using Counts = std::map<Text, int>;
    using PairCounts = std::map<std::pair<Text, Text>, int>;

    void AddWords(TextView sentence, Text& previous);
    void AddSentence(TextView sentence, Text& previous);

    Counts words, sentences;
    PairCounts wordPairs, sentencePairs;
    int lineCount = 0, wordTotal = 0;
};

} // namespace ondrilo
