#include "text/Text.h"

#include "text/CaseFolding.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

TEST(Text, EveryByteSurvivesTheWayToUtf8AndBackAndLiteralsUseTheSameTable) {
    Text bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    EXPECT_EQ(FromUtf8(ToUtf8(bytes)), bytes);
    EXPECT_EQ("é€–“”…"_w, "\xE9\x80\x96\x93\x94\x85");
    EXPECT_EQ(FromUtf8("é€–“”…"), "é€–“”…"_w);
}

TEST(Text, WhatTheCodePageLacksBecomesAQuestionMarkAndBrokenUtf8NeverStopsTheConversion) {
    EXPECT_EQ(FromUtf8("a→b"), "a?b");
    EXPECT_EQ(FromUtf8("\xE2\x82"), "??");
    EXPECT_EQ(FromUtf8("\xC0\x80"), "??") << "an overlong form is no zero byte";
    EXPECT_EQ(FromUtf8("\xED\xA0\x80"), "???") << "half a surrogate pair";
    EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), "????") << "beyond the last code point";
    EXPECT_EQ(FromUtf8("\xC3("), "?(") << "the byte after a broken one is kept";
}

TEST(CaseFolding, FoldsEveryPairOfTheCodePageAndNothingElse) {
    EXPECT_EQ(MakeLower("AÇÃO ÀÁÂÃÄÅÆÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ ŠŒŽŸ"_w),
              "ação àáâãäåæèéêëìíîïðñòóôõöøùúûüýþ šœžÿ"_w);
    EXPECT_EQ(MakeUpper("ação šœžÿ"_w), "AÇÃO ŠŒŽŸ"_w);
    EXPECT_EQ(MakeLower("×÷ß€ƒ[@`{1"_w), "×÷ß€ƒ[@`{1"_w);
    EXPECT_EQ(MakeUpper("×÷ß€ƒ[@`{1"_w), "×÷ß€ƒ[@`{1"_w);
}

} // namespace
} // namespace ondrilo
