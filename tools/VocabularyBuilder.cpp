#include "tools/VocabularyBuilder.h"

#include "prediction/CDictionary.h"
#include "text/CaseFolding.h"
#include "text/LineReader.h"
#include "text/NormalForm.h"

#include <algorithm>

namespace ondrilo {
namespace {

const Text kStart = "___";

/// The sentences of a line; a run of terminators stays with its sentence.
std::vector<TextView> SentencesOf(TextView line) {
    std::vector<TextView> sentences;
    std::size_t start = 0;
    for (std::size_t i = 1; i <= line.size(); ++i) {
        const bool ends = i == line.size() || (IsTerminator(line[i - 1]) && !IsTerminator(line[i]));
        if (!ends)
            continue;
        sentences.push_back(line.substr(start, i - start));
        start = i;
    }
    return sentences;
}

/// Files hold blanks as "|", so an entry with a bar of its own would come back as another.
bool CanBeStored(TextView entry, std::size_t limit) {
    return !entry.empty() && entry.size() < limit && entry.find('|') == TextView::npos;
}

bool CanBeWord(TextView word) {
    constexpr std::size_t limit = 500;
    return CanBeStored(word, limit);
}

bool HasWords(TextView sentence) {
    return std::any_of(sentence.begin(), sentence.end(), [](char c) { return !IsSeparator(c); });
}

template <class Counts>
Text Lines(const Counts& counts) {
    Text lines;
    for (const auto& [entry, count] : counts)
        lines += BlanksToBars(entry) + " " + std::to_string(count) + "\n";
    return lines;
}

Text Lines(const std::map<std::pair<Text, Text>, int>& counts) {
    Text lines;
    for (const auto& [pair, count] : counts)
        lines +=
            BlanksToBars(pair.first) + " " + BlanksToBars(pair.second) + " " + std::to_string(count) + "\n";
    return lines;
}

std::string Share(std::size_t part, std::size_t whole) {
    constexpr std::size_t percent = 100;
    return std::to_string(whole == 0 ? 0 : percent * part / whole) + " %";
}

} // namespace

void VocabularyBuilder::AddLexiconWord(TextView word, TextView wordClass) {
    auto folded = MakeLower(word);
    if (!CanBeWord(folded))
        return;
    auto& known = lexicon[std::move(folded)];
    if (!wordClass.empty())
        known = wordClass;
}

void VocabularyBuilder::AddLine(TextView line, const TextSource& source) {
    ++lineCount;
    Text previousWord, previousSentence = kStart;
    for (const auto sentence : SentencesOf(line)) {
        AddWords(sentence, source.weight, previousWord);
        if (HasWords(sentence))
            AddSentence(sentence, source, previousSentence);
    }
}

void VocabularyBuilder::AddWords(TextView sentence, int weight, Text& previous) {
    bool first = true;
    for (const auto& token : Split(sentence, kSeparators, kAllTokens)) {
        auto word = MakeLower(token);
        if (!CanBeWord(word))
            continue;
        words[word] += weight;
        ++wordTotal;
        if (!ClassOf(word).empty())
            ++wordsWithClass;
        if (first) {
            words[kStart] += weight;
            wordPairs[{kStart, word}] += weight;
        }
        if (!previous.empty())
            wordPairs[{previous, word}] += weight;
        previous = std::move(word);
        first = false;
    }
}

void VocabularyBuilder::AddSentence(TextView sentence, const TextSource& source, Text& previous) {
    constexpr std::size_t limit = 1000;
    auto entry = NormalizeSentence(Trim(sentence));
    if (entry.size() > source.longestSentence || !CanBeStored(entry, limit)) {
        previous.clear();
        return;
    }
    sentences[entry] += source.sentenceWeight;
    if (!previous.empty())
        sentencePairs[{previous, entry}] += source.sentenceWeight;
    if (previous == kStart)
        sentences[kStart] += source.sentenceWeight;
    previous = std::move(entry);
}

VocabularyBuilder::Counts VocabularyBuilder::AllWords() const {
    auto all = words;
    for (const auto& [word, wordClass] : lexicon)
        all.try_emplace(word, 1);
    return all;
}

const Text& VocabularyBuilder::ClassOf(const Text& word) const {
    static const Text none;
    const auto found = lexicon.find(word);
    return found == lexicon.end() ? none : found->second;
}

VocabularyBuilder::Counts VocabularyBuilder::ClassCounts() const {
    Counts counts;
    for (const auto& [word, count] : words)
        if (const auto& wordClass = ClassOf(word); !wordClass.empty())
            counts[wordClass] += count;
    return counts;
}

VocabularyBuilder::PairCounts VocabularyBuilder::ClassPairCounts() const {
    PairCounts counts;
    for (const auto& [pair, count] : wordPairs) {
        const auto &first = ClassOf(pair.first), &second = ClassOf(pair.second);
        if (!first.empty() && !second.empty())
            counts[{first, second}] += count;
    }
    return counts;
}

Text VocabularyBuilder::WordLines() const {
    Text lines;
    for (const auto& [word, count] : AllWords()) {
        lines += BlanksToBars(word) + " " + std::to_string(count);
        if (const auto& wordClass = ClassOf(word); !wordClass.empty())
            lines += " " + wordClass;
        lines += "\n";
    }
    return lines;
}

SaveResult VocabularyBuilder::Write(const std::filesystem::path& folder) const {
    const auto capacity = static_cast<std::size_t>(CDictionary::WordCapacity());
    const auto classes = ClassCounts();
    if (AllWords().size() > capacity || sentences.size() > capacity)
        return {"more words or sentences than a dictionary holds: " + std::to_string(capacity)};
    if (classes.size() > CWordClassSet::kCapacity)
        return {"more word classes than a dictionary holds: " + std::to_string(CWordClassSet::kCapacity)};
    const std::pair<const char*, Text> files[] = {
        {"geral.pal", WordLines()},      {"geral.par", Lines(wordPairs)},
        {"geral.cg", Lines(classes)},    {"geral.pcg", Lines(ClassPairCounts())},
        {"geral.frs", Lines(sentences)}, {"geral.paf", Lines(sentencePairs)},
    };
    for (const auto& [name, bytes] : files)
        if (auto saved = ReplaceFile(folder / name, bytes); !saved)
            return saved;
    return {};
}

std::string VocabularyBuilder::Report() const {
    const auto all = AllWords();
    const auto withClass = std::count_if(all.begin(), all.end(),
                                         [&](const auto& entry) { return !ClassOf(entry.first).empty(); });
    return "Texts: " + std::to_string(lineCount) + " lines, " + std::to_string(wordTotal) + " words, " +
           std::to_string(words.size()) + " different\nLexicon: " + std::to_string(lexicon.size()) +
           " words\nFiles: " + std::to_string(all.size()) + " words, " + std::to_string(wordPairs.size()) +
           " pairs, " + std::to_string(sentences.size()) + " sentences, " +
           std::to_string(sentencePairs.size()) +
           " sentence pairs\nWith a class: " + Share(static_cast<std::size_t>(withClass), all.size()) +
           " of the words, " +
           Share(static_cast<std::size_t>(wordsWithClass), static_cast<std::size_t>(wordTotal)) +
           " of the running text";
}

} // namespace ondrilo
