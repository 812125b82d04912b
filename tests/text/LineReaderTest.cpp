#include "text/LineReader.h"

#include <gmock/gmock.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

std::vector<std::pair<int, Text>> ReadAll(TextView bytes, std::size_t limit) {
    std::vector<std::pair<int, Text>> reads;
    LineReader lines(bytes, limit);
    while (const auto line = lines.Next())
        reads.emplace_back(lines.LineNumber(), *line);
    return reads;
}

TEST(LineReader, BothKindsOfLineEndGiveTheSameLines) {
    EXPECT_THAT(ReadAll("um\r\n\r\ndois\r\n", 79), ElementsAre(Pair(1, "um"), Pair(2, ""), Pair(3, "dois")));
    EXPECT_THAT(ReadAll("um\n\ndois", 79), ElementsAre(Pair(1, "um"), Pair(2, ""), Pair(3, "dois")));
    EXPECT_THAT(ReadAll("", 79), IsEmpty());
    EXPECT_THAT(ReadAll("a\rb\n", 79), ElementsAre(Pair(1, "a\rb")));
}

TEST(LineReader, AnOverLongLineIsSeveralReadsOfTheSameLine) {
    EXPECT_THAT(ReadAll("abcdefgh\nij\n", 3),
                ElementsAre(Pair(1, "abc"), Pair(1, "def"), Pair(1, "gh"), Pair(2, "ij")));
    EXPECT_THAT(ReadAll("abc\r\nde\r\n", 3), ElementsAre(Pair(1, "abc"), Pair(2, "de")))
        << "a line that just fits is one read, whatever its end";
    EXPECT_THAT(ReadAll("abcd", 2), ElementsAre(Pair(1, "ab"), Pair(1, "cd")));
}

TEST(FieldScanner, ReadsWordsAndNumbersAsTheCLibraryDoes) {
    FieldScanner fields(" \tcasa|nova  12V\v-7 +3");
    EXPECT_EQ(fields.Word(), "casa|nova");
    EXPECT_EQ(fields.Integer(), 12);
    EXPECT_EQ(fields.Word(), "V") << "what stands after the number stays";
    EXPECT_EQ(fields.Integer(), -7);
    EXPECT_EQ(fields.Integer(), 3);
    EXPECT_EQ(fields.Integer(), std::nullopt);
    EXPECT_EQ(fields.Word(), std::nullopt);
}

TEST(FieldScanner, AWordLimitLeavesTheRestOfTheWord) {
    FieldScanner fields("abcdef g");
    EXPECT_EQ(fields.Word(4), "abcd");
    EXPECT_EQ(fields.Word(4), "ef");
    EXPECT_EQ(fields.Word(4), "g");
}

TEST(FieldScanner, WhatIsNoNumberStaysForTheNextField) {
    FieldScanner fields("abc - 1");
    EXPECT_EQ(fields.Integer(), std::nullopt);
    EXPECT_EQ(fields.Real(), std::nullopt);
    EXPECT_EQ(fields.Word(), "abc");
    EXPECT_EQ(fields.Integer(), std::nullopt);
}

TEST(FieldScanner, HugeNumbersKeepTheLowBitsOfTheNearest) {
    EXPECT_EQ(FieldScanner("2147483648").Integer(), std::numeric_limits<int>::min());
    EXPECT_EQ(FieldScanner("4294967297").Integer(), 1);
    EXPECT_EQ(FieldScanner("-4294967297").Integer(), -1);
    EXPECT_EQ(FieldScanner("99999999999999999999").Integer(), -1) << "the low half of the greatest";
    EXPECT_EQ(FieldScanner("-99999999999999999999").Integer(), 0) << "the low half of the least";
    EXPECT_EQ(FieldScanner("-9223372036854775808").Integer(), 0);
}

TEST(FieldScanner, RealsHaveAPointInAnyLocale) {
    // Many machines have no such locale; then this checks the usual one only.
    std::setlocale(LC_NUMERIC, "pt_PT.UTF-8");
    FieldScanner fields("38.7223 -9,1 +2e-3 .5 1e99999 -1e-99999 nan");
    EXPECT_EQ(fields.Real(), 38.7223);
    EXPECT_EQ(fields.Real(), -9);
    EXPECT_EQ(fields.Word(), ",1");
    EXPECT_EQ(fields.Real(), 0.002);
    EXPECT_EQ(fields.Real(), 0.5);
    EXPECT_EQ(fields.Real(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(fields.Real(), 0);
    EXPECT_TRUE(std::isnan(fields.Real().value_or(0)));
    std::setlocale(LC_NUMERIC, "C");
}

TEST(FieldScanner, TheTailKeepsItsInnerBlanksAndIsNothingWhenEmpty) {
    FieldScanner fields("TIPO_LETRA   Times  New Roman ");
    EXPECT_EQ(fields.Word(), "TIPO_LETRA");
    EXPECT_EQ(fields.Tail(), "Times  New Roman ");
    EXPECT_EQ(fields.Tail(), std::nullopt);
    EXPECT_EQ(FieldScanner(" \t").Tail(), std::nullopt);
}

TEST(FieldScanner, BarsStandForBlanksInDictionaryFiles) {
    EXPECT_EQ(BlanksToBars("bom dia a todos"), "bom|dia|a|todos");
    EXPECT_EQ(BarsToBlanks("bom|dia"), "bom dia");
}

} // namespace
} // namespace ondrilo
