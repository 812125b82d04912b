#include "benchmarks/GeneratedData.h"

#include "text/LineReader.h"
#include "text/Splitter.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <fstream>
#include <numeric>
#include <random>
#include <set>
#include <unistd.h>
#include <utility>

namespace ondrilo {
namespace {

using Entries = std::vector<Text>;
using Ranks = std::vector<std::size_t>;

/// Reproducible everywhere, unlike the distributions of the standard library.
class Random {
  public:
    std::size_t Below(std::size_t bound) { return engine() % bound; }
    /// 0 to 1.
    double Fraction() { return static_cast<double>(engine() >> 11) / 9007199254740992.0; }
    /// Small numbers are far more likely than large ones.
    std::size_t Skewed(std::size_t bound) {
        const double fraction = Fraction();
        return static_cast<std::size_t>(fraction * fraction * fraction * static_cast<double>(bound));
    }
    template <typename Range>
    auto& Pick(Range& range) {
        return range[Below(range.size())];
    }

  private:
    std::mt19937_64 engine{20'24};
};

/// Initials as often as they stand here.
constexpr TextView kInitials =
    "aaaaaaaaaaaabcccccccccccdddddddddeeeeeeeefffgggiiiiijlllmmmmmmnnoopppppppppqrrrrrrrrsssssstttttuvvvxz"
    "bbfgiá"_w;
constexpr std::array<TextView, 15> kVowels{"a",   "e",   "i",   "o",   "u",    "a",     "e",   "o",
                                           "á"_w, "é"_w, "í"_w, "ó"_w, "ão"_w, "ões"_w, "ei"_w};
constexpr std::array<TextView, 18> kConsonants{"b", "c", "d", "f", "g",  "l",  "m",  "n",  "p",
                                               "r", "s", "t", "v", "nh", "lh", "ch", "ss", "rr"};
constexpr std::array<TextView, 12> kClasses{"N",   "V",   "ADJ", "ADV",  "PREP", "DET",
                                            "PRO", "CON", "NUM", "NPRO", "INT",  "CIT"};
constexpr TextView kStart = "___";

Text MakeWord(Random& random) {
    Text word(1, random.Pick(kInitials));
    const std::size_t syllables = 2 + random.Below(3);
    for (std::size_t i = 0; i < syllables; ++i)
        word.append(random.Pick(kConsonants)).append(random.Pick(kVowels));
    return word;
}

Text MakeSentence(Random& random, const Entries& words, const Ranks& byRank) {
    Text sentence;
    const std::size_t length = 2 + random.Below(6);
    for (std::size_t i = 0; i < length; ++i)
        sentence += (i == 0 ? "" : " ") + words[byRank[random.Skewed(words.size())]];
    return sentence + random.Pick(kTerminators);
}

template <typename Make>
Entries MakeEntries(std::size_t count, Make make) {
    std::set<Text> entries{Text(kStart)};
    while (entries.size() < count)
        entries.insert(make());
    return {entries.begin(), entries.end()};
}

/// Positions of the entries from the most common to the rarest; the start is the most common.
Ranks RankEntries(const Entries& entries, Random& random) {
    Ranks ranks(entries.size());
    std::iota(ranks.begin(), ranks.end(), std::size_t{0});
    for (std::size_t i = ranks.size(); i > 1; --i)
        std::swap(ranks[i - 1], ranks[random.Below(i)]);
    const auto start = std::lower_bound(entries.begin(), entries.end(), kStart) - entries.begin();
    std::swap(ranks.front(), *std::find(ranks.begin(), ranks.end(), static_cast<std::size_t>(start)));
    return ranks;
}

/// How many successors the entry of a rank has, so that all together have `pairs`.
std::vector<std::size_t> SuccessorCounts(std::size_t entries, std::size_t pairs) {
    const double most = std::min(8'000.0, static_cast<double>(entries) / 4);
    std::vector<double> weights(entries);
    for (std::size_t rank = 0; rank < entries; ++rank)
        weights[rank] = 1 / std::pow(static_cast<double>(rank + 10), 0.85);
    const double scale = static_cast<double>(pairs) / std::accumulate(weights.begin(), weights.end(), 0.0);
    std::vector<std::size_t> counts(entries);
    std::size_t left = pairs;
    for (std::size_t rank = 0; rank < entries; ++rank) {
        counts[rank] = std::min(left, static_cast<std::size_t>(std::min(most, weights[rank] * scale)));
        left -= counts[rank];
    }
    for (std::size_t rank = 0; left > 0; rank = (rank + 1) % entries)
        if (static_cast<double>(counts[rank]) < most) {
            ++counts[rank];
            --left;
        }
    return counts;
}

class Output {
  public:
    explicit Output(const std::filesystem::path& path) : file(path, std::ios::binary) {}
    template <typename... Fields>
    void Line(const Fields&... fields) {
        TextView blank;
        ((file << std::exchange(blank, " ") << fields), ...);
        file << '\n';
    }

  private:
    std::ofstream file;
};

void WritePairs(const std::filesystem::path& path, const Entries& entries, const Ranks& byRank,
                std::size_t pairs, Random& random) {
    const auto counts = SuccessorCounts(entries.size(), pairs);
    std::vector<std::size_t> countAt(entries.size());
    for (std::size_t rank = 0; rank < counts.size(); ++rank)
        countAt[byRank[rank]] = counts[rank];

    Entries onFile;
    for (const Text& entry : entries)
        onFile.push_back(BlanksToBars(entry));
    Output out(path);
    std::vector<std::size_t> seconds;
    for (std::size_t first = 0; first < entries.size(); ++first) {
        seconds.clear();
        while (seconds.size() < countAt[first]) {
            while (seconds.size() < countAt[first])
                seconds.push_back(byRank[random.Skewed(entries.size())]);
            std::sort(seconds.begin(), seconds.end());
            seconds.erase(std::unique(seconds.begin(), seconds.end()), seconds.end());
        }
        for (const std::size_t second : seconds)
            out.Line(onFile[first], onFile[second], 1 + random.Skewed(300));
    }
}

std::size_t FrequencyOf(std::size_t rank) {
    return 1 + 2'000'000 / (rank + 20);
}

void WriteWords(const std::filesystem::path& path, const Entries& words, const Ranks& byRank,
                Random& random) {
    Ranks rankAt(words.size());
    for (std::size_t rank = 0; rank < byRank.size(); ++rank)
        rankAt[byRank[rank]] = rank;
    Output out(path);
    for (std::size_t i = 0; i < words.size(); ++i)
        out.Line(words[i], FrequencyOf(rankAt[i]), random.Pick(kClasses));
}

void WriteSentences(const std::filesystem::path& path, const Entries& sentences, Random& random) {
    Output out(path);
    for (const Text& sentence : sentences)
        out.Line(BlanksToBars(sentence), 1 + random.Skewed(200));
}

void WriteClasses(const std::filesystem::path& folder, Random& random) {
    Output classes(folder / "geral.cg");
    Output pairs(folder / "geral.pcg");
    for (const TextView first : kClasses) {
        classes.Line(first, 1000 + random.Below(100'000));
        for (const TextView second : kClasses)
            pairs.Line(first, second, 1 + random.Below(20'000));
    }
}

/// Half of the entries are common ones, half are the person's own.
template <typename Make>
Entries MakeUserEntries(const Entries& general, const Ranks& byRank, std::size_t count, Random& random,
                        Make make) {
    std::set<Text> entries{Text(kStart)};
    while (entries.size() < count / 2)
        entries.insert(general[byRank[random.Skewed(general.size())]]);
    while (entries.size() < count)
        entries.insert(make());
    return {entries.begin(), entries.end()};
}

Entries Common(const Entries& entries, const Ranks& byRank) {
    Entries common;
    for (std::size_t rank = 0; rank < std::min<std::size_t>(500, byRank.size()); ++rank)
        common.push_back(entries[byRank[rank]]);
    return common;
}

} // namespace

GeneratedData::GeneratedData(const DataSize& size)
    : folder(std::filesystem::temp_directory_path() /
             ("ondrilo-bench-" + std::to_string(::getpid()) + "-" + std::to_string(size.words))) {
    std::filesystem::create_directories(folder);
    Random random;
    const Text user(ProfileName());

    const auto makeWord = [&] {
        return MakeWord(random);
    };
    const Entries words = MakeEntries(size.words, makeWord);
    const Ranks wordRanks = RankEntries(words, random);
    WriteWords(folder / "geral.pal", words, wordRanks, random);
    WritePairs(folder / "geral.par", words, wordRanks, size.wordPairs, random);
    WriteClasses(folder, random);
    commonWords = Common(words, wordRanks);

    const auto makeSentence = [&] {
        return MakeSentence(random, words, wordRanks);
    };
    const Entries sentences = MakeEntries(size.sentences, makeSentence);
    const Ranks sentenceRanks = RankEntries(sentences, random);
    WriteSentences(folder / "geral.frs", sentences, random);
    WritePairs(folder / "geral.paf", sentences, sentenceRanks, size.sentencePairs, random);
    commonSentences = Common(sentences, sentenceRanks);

    const Entries userWords = MakeUserEntries(words, wordRanks, size.userEntries, random, makeWord);
    WriteSentences(folder / (user + ".pal"), userWords, random);
    WritePairs(folder / (user + ".par"), userWords, RankEntries(userWords, random), size.userPairs, random);
    const Entries userSentences =
        MakeUserEntries(sentences, sentenceRanks, size.userEntries, random, makeSentence);
    WriteSentences(folder / (user + ".frs"), userSentences, random);
    WritePairs(folder / (user + ".paf"), userSentences, RankEntries(userSentences, random), size.userPairs,
               random);
    Output(folder / (user + ".abr")).Line("bd", "bom dia");
    // As a rule general files are old when a session begins.
    for (const auto& file : std::filesystem::directory_iterator(folder))
        std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now() -
                                                   std::chrono::hours(1));
}

GeneratedData::~GeneratedData() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

const GeneratedData& GeneratedData::Full() {
    static const GeneratedData data{DataSize()};
    return data;
}

} // namespace ondrilo
