#include "text/Counting.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

TEST(Counting, ARunOfCapitalsCostsOneCapsLockAndALoneCapitalOneShift) {
    EXPECT_EQ(CountQwertyKeys(""), 0);
    EXPECT_EQ(CountQwertyKeys("AB"), 3);
    EXPECT_EQ(CountQwertyKeys("Ab"), 3);
    EXPECT_EQ(CountQwertyKeys("AB c"), 6);
    EXPECT_EQ(CountQwertyKeys("A, B"), 1 + 1 + 1 + 1 + 1) << "the run goes on over what is no letter";
    EXPECT_EQ(CountQwertyKeys("ABc D"), 3 + 2 + 1 + 2) << "a run that ended starts anew";
    EXPECT_EQ(CountQwertyKeys("ÇÃO"_w), 1 + 1 + 2 + 1);
}

TEST(Counting, DeadKeysAreCountedApartAndAKeyPressIsOneACharacter) {
    EXPECT_EQ(CountQwertyKeys(" é ê ? €\n"_w), 1 + 2 + 1 + 3 + 1 + 2 + 1 + 2 + 1);
    EXPECT_EQ(CountKeyPresses(" é ê ? €\n"_w), 9);
    EXPECT_EQ(CountKeyPresses("AB"), 3);
    EXPECT_EQ(CountKeyPresses("Ab"), 3);
}

TEST(Counting, CharactersWithoutAKeyCostNothing) {
    EXPECT_EQ(CountQwertyKeys("ä\t\r–ÿ"_w), 0);
    EXPECT_EQ(CountKeyPresses("ä\t\r–ÿ"_w), 0);
    EXPECT_EQ(CountQwertyKeys(Text(1, '\0')), 0);
}

TEST(Counting, TheCountsOfALongTextHaveNoLimit) {
    Text text;
    for (int i = 0; i < 400; ++i)
        text += "[eu] vou.\r\n";
    EXPECT_EQ(CountSymbols(text), 400);
    EXPECT_EQ(CountWords(DropBrackets(text)), 800);
    EXPECT_EQ(CountSentences(DropBrackets(text)), 400);
    EXPECT_EQ(CountCharacters("a\r\nb"), 3);
}

TEST(Counting, ARunOfTerminatorsIsOneSentence) {
    EXPECT_EQ(CountSentences("Sim?! Não."_w), 2);
    EXPECT_EQ(CountSentences("sem fim"), 0);
    EXPECT_EQ(CountSentences("."), 1);
}

TEST(Counting, OfTwoAdjacentBracketsTheSecondStays) {
    EXPECT_EQ(DropBrackets("[a][b]"), "a[b");
    EXPECT_EQ(DropBrackets("[[["), "[");
}

} // namespace
} // namespace ondrilo
