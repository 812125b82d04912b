#include "prediction/CDictionary.h"
#include "text/CaseFolding.h"
#include "text/LineReader.h"
#include "text/Splitter.h"

namespace ondrilo {
namespace {

constexpr std::size_t kLineLimit = 499;

/// Calls visit(tokens) with the folded words of each line.
template <typename Visit>
void ForEachLine(const std::filesystem::path& path, Visit visit) {
    const FileBytes file = ReadFile(path);
    LineReader lines(file.bytes, kLineLimit);
    while (const auto line = lines.Next())
        visit(Split(MakeLower(*line)));
}

/// Calls visit(sentence) for each sentence with its whole run of terminators, and for what follows the last.
template <typename Visit>
void ForEachSentence(const std::filesystem::path& path, Visit visit) {
    const Text text = Replace(ReadFile(path).bytes, "\r\n", "\n");
    Text current;
    char previous = 0;
    for (const char c : text) {
        if (!IsTerminator(c) && IsTerminator(previous) && !current.empty()) {
            visit(current);
            current.clear();
        }
        current += c;
        previous = c;
    }
    if (!current.empty())
        visit(current);
}

} // namespace

void CDictionary::LearnWordsFromFile(const std::filesystem::path& path) {
    ForEachLine(path, [this](const Tokens& tokens) {
        for (const Text& token : tokens)
            AddUserWord(token);
    });
}

void CDictionary::LearnWordPairsFromFile(const std::filesystem::path& path) {
    ForEachLine(path, [this](const Tokens& tokens) {
        for (std::size_t i = 1; i < tokens.size(); ++i)
            AddUserWordPair(tokens[i - 1], tokens[i]);
    });
}

void CDictionary::LearnSentencesFromFile(const std::filesystem::path& path) {
    ForEachSentence(path, [this](const Text& sentence) { AddUserSentence(sentence); });
}

void CDictionary::LearnSentencePairsFromFile(const std::filesystem::path& path) {
    Text last;
    ForEachSentence(path, [&](const Text& sentence) {
        if (!last.empty())
            AddUserSentencePair(last, sentence);
        last = sentence;
    });
}

} // namespace ondrilo
