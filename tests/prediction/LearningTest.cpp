#include "tests/prediction/DictionaryFolder.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Learning : public DictionaryFolder {
  protected:
    Learning() { (void)Load(); }

    void Learn(TextView text) {
        const auto path = folder.Write("texto.txt", text);
        dictionary.LearnWordsFromFile(path);
        dictionary.LearnWordPairsFromFile(path);
        dictionary.LearnSentencesFromFile(path);
        dictionary.LearnSentencePairsFromFile(path);
    }
    [[nodiscard]] Tokens Sentences() const {
        Tokens all;
        for (int position = dictionary.FirstSentence(); position >= 0;)
            all.emplace_back(dictionary.NextSentence(position).Characters());
        return all;
    }
    [[nodiscard]] Tokens NextSentences(TextView sentence) const {
        CDictionaryNextSentenceSet next;
        (void)dictionary.NextSentenceSet(sentence, next);
        Tokens told;
        for (const auto& record : next)
            told.emplace_back(record.entry.Characters());
        return told;
    }
};

TEST_F(Learning, PairsDoNotCrossALineAndSentencesDo) {
    Learn("Olá amigo\r\nbom\r\n\r\nSim?! Não"_w);
    EXPECT_THAT(Words(), ElementsAre("amigo", "bom", "não"_w, "olá"_w, "sim"));
    EXPECT_THAT(NextWords("olá"_w), ElementsAre("amigo:0:1"));
    EXPECT_THAT(NextWords("amigo"), IsEmpty());
    EXPECT_THAT(NextWords("sim"), ElementsAre("não:0:1"_w));
    EXPECT_THAT(Sentences(), ElementsAre("não"_w, "olá amigo bom sim?!"_w));
    EXPECT_THAT(NextSentences("olá amigo bom sim?!"_w), ElementsAre("não"_w));
    EXPECT_FALSE(dictionary.GetWord("___"));
}

TEST_F(Learning, ATextReadTwiceCountsTwiceAndItsEndIsNoSentenceWhenNothingStandsThere) {
    Learn("A b.\r\n");
    Learn("A b.\r\n");
    EXPECT_EQ(dictionary.GetWord("a").UserFrequency(), 2);
    EXPECT_THAT(NextWords("a"), ElementsAre("b:0:2"));
    EXPECT_EQ(dictionary.SentenceTotals().user, 2);
    EXPECT_THAT(NextSentences("a b."), IsEmpty()) << "passes do not follow one another";
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.frs"), "a|b. 2\n");
}

TEST_F(Learning, AnOverlongLineIsLearnedInPieces) {
    Learn(Text(250, 'a') + " " + Text(250, 'b'));
    EXPECT_THAT(Words(), ElementsAre(Text(250, 'a'), "bb", Text(248, 'b')));
    EXPECT_EQ(dictionary.WordTotals().userPairs, 1);
}

TEST_F(Learning, TextsOfTheLimitAreIgnored) {
    dictionary.AddUserWord(Text(500, 'a'));
    EXPECT_FALSE(dictionary.UserWordsChanged());
    dictionary.AddUserWord(Text(499, 'a'));
    EXPECT_EQ(dictionary.WordCount(), 1);
    dictionary.AddUserWordPair(Text(499, 'a'), Text(500, 'a'));
    EXPECT_FALSE(dictionary.UserWordPairsChanged());
    dictionary.AddUserSentence(Text(1000, 'a'));
    dictionary.AddUserSentence(Text(500, ' ') + Text(999, 'a'));
    EXPECT_THAT(Sentences(), ElementsAre(Text(999, 'a'))) << "blanks that are not stored do not count";
}

TEST_F(Learning, APairOfAnUnknownWordMarksAChangeAndNothingElse) {
    dictionary.AddUserWord("a");
    dictionary.AddUserWordPair("a", "b");
    EXPECT_TRUE(dictionary.UserWordPairsChanged());
    EXPECT_EQ(dictionary.WordTotals().userPairs, 0);
    EXPECT_THAT(NextWords("a"), IsEmpty());
}

} // namespace
} // namespace ondrilo
