#include "text/Text.h"

#include "text/CaseFolding.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

Text EveryByte() {
    Text bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    return bytes;
}

TEST(Text, EveryByteSurvivesTheWayToUtf8AndBack) {
    EXPECT_EQ(FromUtf8(ToUtf8(EveryByte())), EveryByte());
}

TEST(Text, LiteralsAndTheRunTimeConversionUseTheSameTable) {
    EXPECT_EQ("Não é só 5 € – “sim”…"_w, FromUtf8("Não é só 5 € – “sim”…"));
    EXPECT_EQ("é"_w, "\xE9");
    EXPECT_EQ("€"_w, "\x80");
    EXPECT_EQ(""_w.size(), 0U);
}

TEST(Text, WhatTheCodePageLacksBecomesAQuestionMarkAndBrokenUtf8NeverStopsTheConversion) {
    EXPECT_EQ(FromUtf8("a→b"), "a?b");
    EXPECT_EQ(FromUtf8("\xC3"), "?");
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

TEST(CaseFolding, FoldingTwiceChangesNothingMore) {
    EXPECT_EQ(MakeLower(MakeLower(EveryByte())), MakeLower(EveryByte()));
    for (const char c : EveryByte())
        EXPECT_EQ(MakeLower(MakeUpper(c)), MakeLower(c)) << static_cast<int>(c);
}

} // namespace
} // namespace ondrilo
