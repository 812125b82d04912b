#include "text/LineReader.h"

#include <gmock/gmock.h>

#include <clocale>
#include <limits>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::Pair;

std::vector<std::pair<int, Text>> ReadAll(TextView bytes, std::size_t limit) {
    std::vector<std::pair<int, Text>> reads;
    LineReader lines(bytes, limit);
    while (const auto line = lines.Next())
        reads.emplace_back(lines.LineNumber(), *line);
    return reads;
}

TEST(LineReader, BothKindsOfLineEndGiveTheSameLines) {
    for (const char* bytes : {"um\r\n\r\ndois\r\n", "um\n\ndois"})
        EXPECT_THAT(ReadAll(bytes, 79), ElementsAre(Pair(1, "um"), Pair(2, ""), Pair(3, "dois")));
    EXPECT_THAT(ReadAll("a\rb\n", 79), ElementsAre(Pair(1, "a\rb")));
}

TEST(LineReader, AnOverLongLineIsSeveralReadsOfTheSameLine) {
    EXPECT_THAT(ReadAll("abcdefgh\nij\n", 3),
                ElementsAre(Pair(1, "abc"), Pair(1, "def"), Pair(1, "gh"), Pair(2, "ij")));
    EXPECT_THAT(ReadAll("abc\r\nde\r\n", 3), ElementsAre(Pair(1, "abc"), Pair(2, "de")))
        << "a line that just fits is one read, whatever its end";
}

TEST(FieldScanner, ReadsWordsAndNumbersAsTheCLibraryDoes) {
    FieldScanner fields(" \tcasa|nova  12V\v-7 +3 abc - 1");
    EXPECT_EQ(fields.Word(4), "casa");
    EXPECT_EQ(fields.Word(), "|nova") << "a limit leaves the rest of the word";
    EXPECT_EQ(fields.Integer(), 12);
    EXPECT_EQ(fields.Word(), "V") << "what stands after the number stays";
    EXPECT_EQ(fields.Integer(), -7);
    EXPECT_EQ(fields.Integer(), 3);
    EXPECT_EQ(fields.Integer(), std::nullopt);
    EXPECT_EQ(fields.Real(), std::nullopt);
    EXPECT_EQ(fields.Word(), "abc") << "what is no number stays for the next field";
    EXPECT_EQ(fields.Integer(), std::nullopt);
}

TEST(FieldScanner, HugeNumbersKeepTheLowBitsOfTheNearest) {
    EXPECT_EQ(FieldScanner("2147483648").Integer(), std::numeric_limits<int>::min());
    EXPECT_EQ(FieldScanner("-4294967297").Integer(), -1);
    EXPECT_EQ(FieldScanner("99999999999999999999").Integer(), -1) << "the low half of the greatest";
    EXPECT_EQ(FieldScanner("-99999999999999999999").Integer(), 0) << "the low half of the least";
}

TEST(FieldScanner, RealsHaveAPointInAnyLocale) {
    // Many machines have no such locale; then this checks the usual one only.
    std::setlocale(LC_NUMERIC, "pt_PT.UTF-8");
    FieldScanner fields("38.7223 -9,1 +2e-3 .5 1e99999 -1e-99999");
    EXPECT_EQ(fields.Real(), 38.7223);
    EXPECT_EQ(fields.Real(), -9);
    EXPECT_EQ(fields.Word(), ",1");
    for (const double real : {0.002, 0.5, std::numeric_limits<double>::infinity(), 0.})
        EXPECT_EQ(fields.Real(), real);
    std::setlocale(LC_NUMERIC, "C");
}

TEST(FieldScanner, TheTailKeepsItsInnerBlanksAndIsNothingWhenEmpty) {
    FieldScanner fields("TIPO_LETRA   Times  New Roman ");
    EXPECT_EQ(fields.Word(), "TIPO_LETRA");
    EXPECT_EQ(fields.Tail(), "Times  New Roman ");
    EXPECT_EQ(fields.Tail(), std::nullopt);
    EXPECT_EQ(FieldScanner(" \t").Tail(), std::nullopt);
}

} // namespace
} // namespace ondrilo
