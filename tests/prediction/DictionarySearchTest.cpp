#include "tests/prediction/DictionaryFolder.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DictionarySearch : public DictionaryFolder {};

TEST_F(DictionarySearch, ACompleteWordIsNotItsOwnContinuation) {
    Write("geral.pal", "casa 1\ncasaco 1\ncasar 1\ncão 1\nágua 1\n"_w);
    (void)Load();
    EXPECT_THAT(WithPrefix("casa"), ElementsAre("casaco", "casar"));
    EXPECT_THAT(WithPrefix("ca", 2), ElementsAre("casa", "casaco"));
    EXPECT_THAT(WithPrefix(""), IsEmpty());
    EXPECT_THAT(WithPrefix("á"_w), ElementsAre("água"_w));
    EXPECT_THAT(WithPrefix("Á"_w), IsEmpty()) << "folding words is the caller's";
    EXPECT_EQ(dictionary.FindWord("casb").position, 3);
    EXPECT_EQ(dictionary.FindWord("ÿ"_w).position, 5);
}

TEST_F(DictionarySearch, SentencesStopAtThePositionThatTheOutputHolds) {
    Write("geral.frs", "a 1\nb|c 1\nb|d 1\nb|e 1\n");
    (void)Load();
    EXPECT_THAT(SentencesWithPrefix("B  "), ElementsAre("b c", "b d", "b e"));
    EXPECT_THAT(SentencesWithPrefix("b", 3), ElementsAre("b c", "b d"));
    EXPECT_THAT(SentencesWithPrefix("b", 1), IsEmpty());
    EXPECT_THAT(SentencesWithPrefix(" \t"), IsEmpty());
}

TEST_F(DictionarySearch, AtMostTenThousandSuccessorsAreTold) {
    Text words = "___ 1\n";
    Text pairs;
    for (int i = 0; i < 10'500; ++i) {
        const Text word = "w" + std::to_string(100'000 + i);
        words += word + " 1\n";
        pairs += "___ " + word + " 1\n";
    }
    Write("geral.pal", words);
    Write("geral.par", pairs);
    (void)Load();
    EXPECT_EQ(NextWords("___").size(), 10'000U);
    dictionary.AddUserWordPair("___", "w100000");
    EXPECT_EQ(NextWords("___").size(), 10'000U);
    EXPECT_EQ(dictionary.GetWord("___").NextCount(), 10'500);
}

/// What the dictionary must be: one sorted table.
class SortedTable {
  public:
    struct Record {
        int general = 0;
        int user = 0;
        std::map<Text, std::pair<int, int>> next;
    };
    std::map<Text, Record> words;

    [[nodiscard]] int PositionOf(const Text& word) const {
        return static_cast<int>(std::distance(words.begin(), words.lower_bound(word)));
    }
    [[nodiscard]] Tokens WithPrefix(const Text& prefix) const {
        Tokens found;
        for (const auto& [word, record] : words)
            if (word.starts_with(prefix) && word != prefix)
                found.push_back(word);
        return found;
    }
};

TEST_F(DictionarySearch, TheWholeStaysOneSortedTableWhateverThePersonAdds) {
    std::mt19937 random(7);
    const auto word = [&random] {
        constexpr TextView letters = "abéz";
        Text made;
        for (auto length = 1 + random() % 4; length > 0; --length)
            made += letters[random() % letters.size()];
        return made;
    };
    SortedTable table;
    for (int i = 0; i < 60; ++i)
        table.words[word()].general = 1 + i;
    Text lines;
    Text pairs;
    for (auto& [first, record] : table.words) {
        lines += first + " " + std::to_string(record.general) + "\n";
        for (const auto& [second, unused] : table.words)
            if (random() % 8 == 0) {
                record.next[second].first = 3;
                pairs.append(first).append(" ").append(second).append(" 3\n");
            }
    }
    Write("geral.pal", lines);
    Write("geral.par", pairs);
    (void)Load();

    for (int i = 0; i < 400; ++i) {
        const Text first = word();
        const Text second = word();
        dictionary.AddUserWord(first);
        ++table.words[first].user;
        dictionary.AddUserWordPair(first, second);
        if (table.words.contains(second))
            ++table.words[first].next[second].second;
    }

    Tokens expected;
    for (const auto& [text, record] : table.words) {
        expected.push_back(text);
        const auto [found, position] = dictionary.FindWord(text);
        ASSERT_TRUE(found);
        EXPECT_EQ(position, table.PositionOf(text));
        EXPECT_EQ(found.Frequency(), record.general);
        EXPECT_EQ(found.UserFrequency(), record.user);
        Tokens next;
        for (const auto& [second, counters] : record.next)
            next.push_back(second + ":" + std::to_string(counters.first) + ":" +
                           std::to_string(counters.second));
        EXPECT_EQ(NextWords(text), next);
    }
    EXPECT_EQ(Words(), expected);
    for (int i = 0; i < 50; ++i) {
        const Text text = word();
        EXPECT_EQ(dictionary.FindWord(text).position, table.PositionOf(text)) << text;
        EXPECT_EQ(WithPrefix(text, 1000), table.WithPrefix(text)) << text;
    }
}

TEST_F(DictionarySearch, AFileInDisorderIsSearchedAsItStands) {
    Write("geral.pal", "m 1\na 2\nz 3\nz 4\nb 5\n");
    Write("geral.par", "z a 1\nm z 2\nm a 1\n");
    (void)Load();
    EXPECT_FALSE(dictionary.GetWord("a")) << "the search turns away at the middle";
    EXPECT_EQ(dictionary.FindWord("z").position, 2);
    EXPECT_EQ(dictionary.GetWord("z").Frequency(), 3);
    dictionary.AddUserWord("a");
    EXPECT_THAT(Words(), ElementsAre("a", "m", "a", "z", "z", "b"));
    EXPECT_EQ(dictionary.WordCount(), 6);
    dictionary.AddUserWordPair("m", "z", 2);
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.pal"), "a 1\n");
}

} // namespace
} // namespace ondrilo
