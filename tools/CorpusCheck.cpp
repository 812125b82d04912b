#include "tools/CorpusCheck.h"

#include "text/CaseFolding.h"

#include <algorithm>
#include <span>
#include <unordered_set>

namespace ondrilo {
namespace {

constexpr std::size_t kPiece = 1000; ///< words
constexpr std::size_t kRun = 6;      ///< words: shorter ones repeat in any natural text

int Different(std::span<const Text> words) {
    return static_cast<int>(std::unordered_set<Text>(words.begin(), words.end()).size());
}

double Variety(std::span<const Text> words) {
    constexpr double percent = 100;
    const auto size = std::min(kPiece, words.size());
    if (size == 0)
        return 0;
    int different = 0;
    std::size_t pieces = 0;
    for (; (pieces + 1) * size <= words.size(); ++pieces)
        different += Different(words.subspan(pieces * size, size));
    return percent * different / static_cast<double>(pieces * size);
}

CorpusCheck::Repeats& operator+=(CorpusCheck::Repeats& sum, const CorpusCheck::Repeats& other) {
    sum.count += other.count;
    sum.among += other.among;
    return sum;
}

void CountWords(CorpusCheck::File& file, const Tokens& words) {
    file.words = static_cast<int>(words.size());
    file.different = Different(words);
    file.variety = Variety(words);
}

} // namespace

double CorpusCheck::Repeats::PerThousand() const {
    constexpr double thousand = 1000;
    return among == 0 ? 0 : thousand * count / among;
}

void CorpusCheck::StartFile(std::string name) {
    files.push_back({std::move(name)});
    wordsOfFiles.emplace_back();
    lineNumber = 0;
}

void CorpusCheck::AddLine(TextView line) {
    ++lineNumber;
    const auto words = Split(MakeLower(line), kSeparators, kAllTokens);
    if (words.empty())
        return;
    CheckRepeat(lines, Join(words, " "), files.back().lines);
    for (std::size_t i = 0; i + kRun <= words.size(); ++i)
        CheckRepeat(runs,
                    Join(Tokens(words.begin() + static_cast<std::ptrdiff_t>(i),
                                words.begin() + static_cast<std::ptrdiff_t>(i + kRun)),
                         " "),
                    files.back().runs);
    wordsOfFiles.back().insert(wordsOfFiles.back().end(), words.begin(), words.end());
}

void CorpusCheck::CheckRepeat(Seen& seen, const Text& text, Repeats& repeats) {
    ++repeats.among;
    const auto [first, isNew] = seen.try_emplace(text, Here());
    if (isNew)
        return;
    ++repeats.count;
    found.push_back(Here() + ": repeats " + first->second + ": " + ToUtf8(text));
}

std::string CorpusCheck::Here() const {
    return files.back().name + ":" + std::to_string(lineNumber);
}

std::vector<CorpusCheck::File> CorpusCheck::Finish() {
    File all{"all"};
    Tokens allWords;
    for (std::size_t i = 0; i < files.size(); ++i) {
        CountWords(files[i], wordsOfFiles[i]);
        all.lines += files[i].lines;
        all.runs += files[i].runs;
        allWords.insert(allWords.end(), wordsOfFiles[i].begin(), wordsOfFiles[i].end());
    }
    CountWords(all, allWords);
    auto figures = files;
    figures.push_back(std::move(all));
    return figures;
}

} // namespace ondrilo
