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
    Load({{"geral.pal", "casa 1\ncasaco 1\ncasar 1\ncão 1\nágua 1\n"_w}});
    EXPECT_THAT(WithPrefix("casa"), ElementsAre("casaco", "casar"));
    EXPECT_THAT(WithPrefix("ca", 2), ElementsAre("casa", "casaco"));
    EXPECT_THAT(WithPrefix(""), IsEmpty());
    EXPECT_THAT(WithPrefix("á"_w), ElementsAre("água"_w));
    EXPECT_THAT(WithPrefix("Á"_w), IsEmpty()) << "folding words is the caller's";
    EXPECT_EQ(dictionary.FindWord("casb").position, 3);
    EXPECT_EQ(dictionary.FindWord("ÿ"_w).position, 5);
}

TEST_F(DictionarySearch, SentencesStopAtThePositionThatTheOutputHolds) {
    Load({{"geral.frs", "a 1\nb|c 1\nb|d 1\nb|e 1\n"}});
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
    Load({{"geral.pal", words}, {"geral.par", pairs}});
    EXPECT_EQ(NextWords("___").size(), 10'000U);
    dictionary.AddUserWordPair("___", "w100000");
    EXPECT_EQ(NextWords("___").size(), 10'000U);
    EXPECT_EQ(dictionary.GetWord("___").NextCount(), 10'500);
}

TEST_F(DictionarySearch, TheWholeStaysOneSortedTableWhateverThePersonAdds) {
    using Counters = std::pair<int, int>; // general ones and the person's
    std::mt19937 random(7);
    const auto word = [&random] {
        Text made;
        for (auto length = 1 + random() % 4; length > 0; --length)
            made += "abéz"_w[random() % 4];
        return made;
    };
    std::map<Text, Counters> words;
    std::map<Text, std::map<Text, Counters>> next;
    for (int i = 0; i < 60; ++i)
        words[word()].first = 1 + i;
    Text lines, pairs;
    for (const auto& [first, counters] : words) {
        lines += first + " " + std::to_string(counters.first) + "\n";
        for (auto second = words.begin(); second != words.end(); ++second)
            if (random() % 8 == 0) {
                next[first][second->first].first = 3;
                pairs += first + " " + second->first + " 3\n";
            }
    }
    Load({{"geral.pal", lines}, {"geral.par", pairs}});
    for (int i = 0; i < 400; ++i) {
        const Text first = word(), second = word();
        dictionary.AddUserWord(first);
        ++words[first].second;
        dictionary.AddUserWordPair(first, second);
        if (words.contains(second))
            ++next[first][second].second;
    }

    int position = 0;
    for (const auto& [text, counters] : words) {
        const auto [found, at] = dictionary.FindWord(text);
        ASSERT_TRUE(found);
        EXPECT_EQ(at, position++);
        EXPECT_EQ(Counters(found.Frequency(), found.UserFrequency()), counters);
        Tokens told;
        for (const auto& [second, of] : next[text])
            told.push_back(second + ":" + std::to_string(of.first) + ":" + std::to_string(of.second));
        EXPECT_EQ(NextWords(text), told);
    }
    EXPECT_EQ(Words().size(), words.size());
    for (int i = 0; i < 50; ++i) {
        const Text text = word();
        EXPECT_EQ(dictionary.FindWord(text).position, std::distance(words.begin(), words.lower_bound(text)));
        Tokens longer;
        for (auto at = words.upper_bound(text); at != words.end() && at->first.starts_with(text); ++at)
            longer.push_back(at->first);
        EXPECT_EQ(WithPrefix(text, 1000), longer) << text;
    }
}

TEST_F(DictionarySearch, AFileInDisorderIsSearchedAsItStands) {
    Load({{"geral.pal", "m 1\na 2\nz 3\nz 4\nb 5\n"}, {"geral.par", "z a 1\nm z 2\nm a 1\n"}});
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
