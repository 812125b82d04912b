#include "tools/Arguments.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

constexpr ToolOption kKnown[] = {{"--data", "DIR", ""}, {"--count", "N", ""}, {"--forms", "", ""}};
constexpr ToolOption kEncoding[] = {{"--encoding", "NAME", ""}};

Arguments Parsed(std::vector<std::string> words) {
    return {std::move(words), kKnown};
}

TEST(Arguments, SortOptionsFromOperandsInBothSpellings) {
    const auto arguments = Parsed({"one", "--data", "dir", "--count=7", "two", "--forms"});
    EXPECT_EQ(arguments.Required("--data"), "dir");
    EXPECT_EQ(arguments.Number("--count", 1), 7);
    EXPECT_TRUE(arguments.Has("--forms"));
    EXPECT_EQ(arguments.Operands(), (std::vector<std::string>{"one", "two"}));
}

TEST(Arguments, RefuseWhatWouldOtherwiseBeIgnored) {
    EXPECT_THROW(Parsed({"--dta", "x"}), UsageError);
    EXPECT_THROW(Parsed({"--data"}), UsageError);
    EXPECT_THROW(Parsed({"--forms=1"}), UsageError);
    EXPECT_THROW((void)Parsed({}).Required("--data"), UsageError);
    EXPECT_THROW((void)Parsed({"--count", "-1"}).Number("--count", 1), UsageError);
    EXPECT_THROW((void)Parsed({"--count", "7x"}).Number("--count", 1), UsageError);
    EXPECT_THROW(Arguments({"--encoding", "latin9"}, kEncoding), UsageError);
}

TEST(Arguments, TranslateTextsOfTheTerminalUnlessBytesAreAskedFor) {
    EXPECT_EQ(Parsed({}).FromTerminal("maçã"), "maçã"_w);
    EXPECT_EQ(Parsed({}).ToTerminal("maçã"_w), "maçã");
    const Arguments raw({"--encoding", "windows-1252"}, kEncoding);
    EXPECT_EQ(raw.FromTerminal("maçã"_w), "maçã"_w);
    EXPECT_EQ(raw.ToTerminal("maçã"_w), "maçã"_w);
}

} // namespace
} // namespace ondrilo
