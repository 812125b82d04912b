#include "tools/VocabularyBuilder.h"

#include "text/CaseFolding.h"
#include "text/LineReader.h"
#include "text/NormalForm.h"

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

Text Lines(const std::map<Text, int>& counts) {
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

} // namespace

void VocabularyBuilder::AddLine(TextView line, bool withSentences) {
    ++lineCount;
    Text previousWord, previousSentence = kStart;
    for (const auto sentence : SentencesOf(line)) {
        AddWords(sentence, previousWord);
        if (withSentences)
            AddSentence(sentence, previousSentence);
    }
}

void VocabularyBuilder::AddWords(TextView sentence, Text& previous) {
    bool first = true;
    for (const auto& token : Split(sentence, kSeparators, kAllTokens)) {
        auto word = MakeLower(token);
        if (!CanBeStored(word, 500))
            continue;
        ++words[word];
        ++wordTotal;
        if (first) {
            ++words[kStart];
            ++wordPairs[{kStart, word}];
        }
        if (!previous.empty())
            ++wordPairs[{previous, word}];
        previous = std::move(word);
        first = false;
    }
}

void VocabularyBuilder::AddSentence(TextView sentence, Text& previous) {
    auto entry = NormalizeSentence(Trim(sentence));
    if (!CanBeStored(entry, 1000))
        return;
    ++sentences[entry];
    ++sentencePairs[{previous, entry}];
    if (previous == kStart)
        ++sentences[kStart];
    previous = std::move(entry);
}

SaveResult VocabularyBuilder::Write(const std::filesystem::path& folder) const {
    const std::pair<const char*, Text> files[] = {
        {"geral.pal", Lines(words)}, {"geral.par", Lines(wordPairs)}, {"geral.cg", {}},
        {"geral.pcg", {}},           {"geral.frs", Lines(sentences)}, {"geral.paf", Lines(sentencePairs)},
    };
    for (const auto& [name, bytes] : files)
        if (auto saved = ReplaceFile(folder / name, bytes); !saved)
            return saved;
    return {};
}

std::string VocabularyBuilder::Report() const {
    return std::to_string(lineCount) + " lines, " + std::to_string(wordTotal) + " words, " +
           std::to_string(words.size()) + " different, " + std::to_string(wordPairs.size()) + " pairs, " +
           std::to_string(sentences.size()) + " sentences, " + std::to_string(sentencePairs.size()) +
           " sentence pairs";
}

} // namespace ondrilo
