#include "tools/CheckDictionaries.h"

#include "prediction/CDictionary.h"
#include "text/NormalForm.h"

#include <filesystem>
#include <unordered_map>
#include <unordered_set>

namespace ondrilo {

namespace {

using Entries = std::unordered_set<Text>;

constexpr TextView kGeneral = "geral";

/// What differs between the files of words and those of sentences.
struct Side {
    TextView entries; ///< extension
    TextView pairs;
    std::size_t lineLimit;  ///< of the entries' file
    std::size_t tokenLimit; ///< of the pairs' file
    bool isSentences;
};
constexpr Side kWords{".pal", ".par", 999, 511, false};
constexpr Side kSentences{".frs", ".paf", 1499, 1007, true};

Text Stored(const Side& side, TextView word) {
    auto entry = BarsToBlanks(word);
    return side.isSentences ? NormalizeSentence(entry) : entry;
}

Text CountProblem(TextView word) {
    auto problem = IntegerProblem(word);
    return problem.empty() && word.starts_with('-') ? Quoted(word) + " is negative" : problem;
}

class DictionaryCheck {
  public:
    DictionaryCheck(const DataFolder& folder, const Side& side, CheckReport& report)
        : folder(folder), side(side), report(report) {}

    void Run(const std::vector<Text>& profiles) {
        CheckGeneralEntries();
        CheckPairs(kGeneral, {});
        Entries users;
        for (const auto& profile : profiles)
            users.insert(profile);
        for (const auto extension : {side.entries, side.pairs})
            for (const auto& file : folder.Files(extension))
                users.insert(file.substr(0, file.size() - extension.size()));
        users.erase(Text(kGeneral));
        for (const auto& user : users)
            CheckPairs(user, CheckUserEntries(user));
        RequireFiles(kGeneral);
        for (const auto& profile : profiles)
            RequireFiles(profile);
    }

  private:
    void RequireFiles(TextView stem) {
        for (const auto extension : {side.entries, side.pairs}) {
            const auto name = Text(stem).append(extension);
            if (!std::filesystem::exists(folder.Path(name)))
                report.push_back({name, 0, "missing: the program shows an error at each opening"});
        }
    }

    /// The entry of a line, after telling what would be lost of it.
    std::optional<Text> ReadEntry(CheckedFile& file, TextView line, std::size_t mostWords) {
        const auto words = WordsOf(line);
        if (words.empty())
            return std::nullopt;
        if (words.size() > 1)
            if (const auto problem = CountProblem(words[1]); !problem.empty())
                file.Tell("count: " + problem);
        if (words.size() > mostWords)
            file.Tell("what follows " + Quoted(words[mostWords - 1]) +
                      " is lost; blanks are written as \"|\"");
        return Stored(side, words[0]);
    }

    void CheckGeneralEntries() {
        CheckedFile file(report, folder, Text(kGeneral).append(side.entries), side.lineLimit);
        Text last;
        while (const auto line = file.Next()) {
            auto entry = ReadEntry(file, *line, side.isSentences ? 2 : 3);
            if (!entry)
                continue;
            if (!last.empty() && *entry <= last)
                file.Tell(Quoted(*entry) + " does not sort after " + Quoted(last) + ": searches may miss it");
            if (general.size() == static_cast<std::size_t>(CDictionary::WordCapacity()))
                file.Tell("beyond the most entries that a dictionary holds");
            general.insert(*entry);
            last = std::move(*entry);
        }
    }

    Entries CheckUserEntries(TextView user) {
        CheckedFile file(report, folder, Text(user).append(side.entries), side.lineLimit);
        Entries own;
        while (const auto line = file.Next())
            if (auto entry = ReadEntry(file, *line, 2))
                own.insert(std::move(*entry));
        return own;
    }

    void CheckPairs(TextView stem, const Entries& own) {
        CheckedFile file(report, folder, Text(stem).append(side.pairs));
        const bool mustBeSorted = stem == kGeneral;
        Entries groups;
        Text first, lastSecond;
        while (const auto line = file.Next()) {
            const auto words = WordsOf(*line);
            if (!IsTriple(file, words))
                continue;
            for (const auto word : {words[0], words[1]})
                if (const auto entry = Stored(side, word); !general.contains(entry) && !own.contains(entry))
                    file.Tell(Quoted(entry) + " is in no dictionary: the pair is dropped");
            if (!mustBeSorted)
                continue;
            auto second = Stored(side, words[1]);
            if (auto group = Stored(side, words[0]); group != first) {
                if (!groups.insert(group).second)
                    file.Tell("pairs of " + Quoted(group) + " stand in two places");
                first = std::move(group);
            } else if (second <= lastSecond) {
                file.Tell(Quoted(second) + " does not sort after " + Quoted(lastSecond));
            }
            lastSecond = std::move(second);
        }
    }

    bool IsTriple(CheckedFile& file, const std::vector<TextView>& words) {
        if (words.empty())
            return false;
        if (words.size() != 3) {
            file.Tell("not two entries and a count");
            return false;
        }
        if (words[0].size() > side.tokenLimit || words[1].size() > side.tokenLimit) {
            file.Tell("an entry is longer than " + std::to_string(side.tokenLimit) + " bytes");
            return false;
        }
        if (const auto problem = CountProblem(words[2]); !problem.empty())
            file.Tell("count: " + problem);
        return true;
    }

    const DataFolder& folder;
    const Side& side;
    CheckReport& report;
    Entries general;
};

constexpr std::size_t kClassLineLimit = 79;

void CheckClasses(const DataFolder& folder, CheckReport& report) {
    CheckedFile file(report, folder, "geral.cg", kClassLineLimit);
    std::unordered_map<Text, int> classes;
    std::size_t count = 0;
    while (const auto line = file.Next()) {
        if (++count == CWordClassSet::kCapacity + 1)
            file.Tell("beyond the most classes: reading ends here");
        const auto words = WordsOf(*line);
        if (words.size() != 2 || !CountProblem(words[1]).empty()) {
            file.Tell("not a class and its frequency: the frequency before it counts twice");
            continue;
        }
        if (const auto [known, added] = classes.try_emplace(Text(words[0]), file.Line()); !added)
            file.Tell("class " + Quoted(words[0]) + " is already on line " + std::to_string(known->second));
    }
    CheckedFile pairs(report, folder, "geral.pcg", kClassLineLimit);
    while (const auto line = pairs.Next()) {
        const auto words = WordsOf(*line);
        if (words.size() != 3 || !CountProblem(words[2]).empty()) {
            pairs.Tell("not two classes and a count: the count before it counts twice");
            continue;
        }
        for (const auto word : {words[0], words[1]})
            if (!classes.contains(Text(word)))
                pairs.Tell("class " + Quoted(word) + " is not in geral.cg");
    }
}

void CheckAbbreviations(const DataFolder& folder, TextView name, CheckReport& report) {
    constexpr std::size_t lineLimit = 79;
    CheckedFile file(report, folder, name, lineLimit);
    std::unordered_map<Text, int> known;
    while (const auto line = file.Next()) {
        FieldScanner scanner(*line);
        const auto abbreviation = scanner.Word();
        if (!abbreviation || !scanner.Tail()) {
            file.Tell("not an abbreviation and its expansion: skipped");
            continue;
        }
        if (const auto [before, added] = known.try_emplace(Text(*abbreviation), file.Line()); !added)
            file.Tell("replaces line " + std::to_string(before->second));
    }
}

} // namespace

void CheckDictionaries(const DataFolder& folder, const std::vector<Text>& profiles, CheckReport& report) {
    for (const auto* side : {&kWords, &kSentences})
        DictionaryCheck(folder, *side, report).Run(profiles);
    CheckClasses(folder, report);
    for (const auto& name : folder.Files(".abr"))
        CheckAbbreviations(folder, name, report);
}

} // namespace ondrilo
