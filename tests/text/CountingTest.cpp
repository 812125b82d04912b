#include "text/Counting.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

TEST(Counting, ARunOfCapitalsCostsCapsLockOnceAndALoneOneShift) {
    const std::pair<TextView, int> rows[] = {
        {"AB", 3},
        {"Ab", 3},
        {"A, B", 1 + 1 + 1 + 1 + 1}, // the run goes on over what is no letter
        {"ABa Z", 3 + 2 + 1 + 2},    // a run that ended starts anew
        {"ÇÃO"_w, 1 + 1 + 2 + 1},
    };
    for (const auto& [text, keys] : rows)
        EXPECT_EQ(CountQwertyKeys(text), keys) << text;
    EXPECT_EQ(CountKeyPresses("AB Ab"), 7);
    EXPECT_EQ(CountKeyPresses(" é ê ? €\n"_w), 9);
    EXPECT_EQ(CountKeyPresses("ä\t\r–ÿ"_w), 0);
}

TEST(Counting, EachOfThe256CharactersAloneCostsItsKeysAndShift) {
    // By code, sixteen a line.
    constexpr TextView keys = "0000000000100000"
                              "0000000000000000"
                              "1222222122211112" // blank to /
                              "1111111111220202" // 0 to ?
                              "2222222222222222" // @ to O
                              "2222222222221232" // P to _
                              "3111111111111111" // ` to o
                              "1111111111122220" // p to ~
                              "2000000000000000" // the euro
                              "0000000000000000"
                              "0002000200210000"
                              "0000200000120000"
                              "4343000243404340"  // À to Ï
                              "0043430004340000"  // Ð to ß
                              "3232000132303230"  // à to ï
                              "0032320003230000"; // ð to ÿ
    for (std::size_t code = 0; code < keys.size(); ++code)
        EXPECT_EQ(CountQwertyKeys(Text(1, static_cast<char>(code))), keys[code] - '0') << code;
}

TEST(Counting, TheCountsOfALongTextHaveNoLimitAndARunOfTerminatorsIsOneSentence) {
    Text text;
    for (int i = 0; i < 400; ++i)
        text += "[eu] vou?!\r\n";
    EXPECT_EQ(CountSymbols(text), 400);
    EXPECT_EQ(CountWords(DropBrackets(text)), 800);
    EXPECT_EQ(CountSentences(DropBrackets(text)), 400);
    EXPECT_EQ(CountSentences("sem fim"), 0);
    EXPECT_EQ(CountCharacters("a\r\nb"), 3);
    EXPECT_EQ(DropBrackets("[a][b]"), "a[b") << "of two adjacent brackets the second stays";
}

} // namespace
} // namespace ondrilo
