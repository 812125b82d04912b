#pragma once

#include "platform/FileStore.h"
#include "text/Splitter.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>

namespace ondrilo {

/// What a line of text is worth.
struct TextSource {
    /// Each word and pair counts so often. A word that only the lexicon has counts once.
    int weight = 1;
    int sentenceWeight = 1;
    /// Longer sentences, in characters, are not kept; 0 keeps none.
    std::size_t longestSentence = kAllTokens;
};

/// Counts running text, over a lexicon, into the general dictionary files, with the rules by which the
/// program itself splits and learns: folded words, word pairs that cross sentence ends (as the previous word
/// of a prediction does) but no lines, normalised sentences. "___" stands before the first word of each
/// sentence and before the first sentence of each line. Classes are counted in the running text. The same
/// texts always give the same bytes.
class VocabularyBuilder {
  public:
    /// A word that is kept even if no text has it. An empty class leaves one that was told before.
    void AddLexiconWord(TextView word, TextView wordClass = {});
    /// One utterance.
    void AddLine(TextView line, const TextSource& source = {});

    /// Writes geral.pal, .par, .cg, .pcg, .frs and .paf, sorted as the readers need them. More than the
    /// readers take is a problem, and nothing is written.
    SaveResult Write(const std::filesystem::path& folder) const;
    /// Lines of figures.
    [[nodiscard]] std::string Report() const;

  private:
    using Counts = std::map<Text, int>;
    using PairCounts = std::map<std::pair<Text, Text>, int>;

    void AddWords(TextView sentence, int weight, Text& previous);
    void AddSentence(TextView sentence, const TextSource& source, Text& previous);
    /// The texts' words and the lexicon's.
    [[nodiscard]] Counts AllWords() const;
    [[nodiscard]] const Text& ClassOf(const Text& word) const;
    [[nodiscard]] Counts ClassCounts() const;
    [[nodiscard]] PairCounts ClassPairCounts() const;
    [[nodiscard]] Text WordLines() const;

    /// Word and class.
    std::map<Text, Text> lexicon;
    Counts words, sentences;
    PairCounts wordPairs, sentencePairs;
    int lineCount = 0, wordTotal = 0, wordsWithClass = 0;
};

} // namespace ondrilo
