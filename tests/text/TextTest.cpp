#include "text/Text.h"

#include "text/CaseFolding.h"
#include "text/Classes.h"
#include "text/NormalForm.h"
#include "text/Splitter.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

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

TEST(Splitter, HyphenAndApostropheStayInsideAWord) {
    EXPECT_THAT(Split("O guarda-chuva, d'água?!"_w), ElementsAre("O", "guarda-chuva", "d'água"_w));
    EXPECT_THAT(Split("«Olá»: (eu/tu); \"nós\"\r\n\teles."_w),
                ElementsAre("Olá"_w, "eu", "tu", "nós"_w, "eles"));
}

TEST(Splitter, ATextWithMoreWordsThanTheLimitKeepsTheFirst) {
    Text many;
    for (int i = 0; i < 300; ++i)
        many += std::to_string(i) + " ";
    const Tokens tokens = Split(many);
    ASSERT_THAT(tokens, SizeIs(256));
    EXPECT_EQ(tokens.back(), "255");
    EXPECT_THAT(Split(many, kSeparators, kAllTokens), SizeIs(300));
    EXPECT_THAT(SplitTokens(many, kAllTokens), SizeIs(300));
}

TEST(Splitter, ABracketedWordIsOneTokenEvenWhenItIsNotClosed) {
    EXPECT_THAT(SplitTokens("vou [bom dia] já"_w), ElementsAre("vou", "[bom dia]", "já"_w));
    EXPECT_THAT(SplitTokens("vou [bom"), ElementsAre("vou", "[bom]"));
    EXPECT_THAT(SplitTokens("vou] [a][]!"), ElementsAre("vou", "[a]", "[]"));
}

TEST(Splitter, ReplacesFromTheLeftAndTrims) {
    EXPECT_EQ(Replace("a;;;;b", ";;;", " "), "a ;b");
    EXPECT_EQ(Trim("\n a b\t"), "a b");
    EXPECT_EQ(Trim(" \t\r\n"), "");
}

TEST(Classes, AFullStopTurnsAWordIntoASentence) {
    EXPECT_TRUE(IsSingleWord(" guarda-chuva, "));
    EXPECT_FALSE(IsSingleWord("sim."));
    EXPECT_TRUE(IsSentence("sim."));
    EXPECT_TRUE(IsWordSequence("bom dia"));
    EXPECT_FALSE(IsWordSequence("bom dia."));
}

TEST(Classes, APictogramTokenHasOnePairOfBracketsAtItsEnds) {
    EXPECT_TRUE(IsPictogramToken("[bom dia]") && IsPictogramToken("[]"));
    for (const TextView no : {"", "[", "]", "[a", "a]", "[a]]", "[[a]", "[a] ", "][", "[a][b]"})
        EXPECT_FALSE(IsPictogramToken(no)) << no;
    EXPECT_TRUE(IsAllPictograms("") && HasNoPictograms(" . ")) << "an empty text is both";
    EXPECT_TRUE(IsAllPictograms("[eu] [quero].") && !HasNoPictograms("[eu]"));
    EXPECT_FALSE(IsAllPictograms("[eu] quero") || HasNoPictograms("[eu] quero"));
}

TEST(Classes, WhatAKeyWritesTeachesByItsForm) {
    EXPECT_EQ(LearnedKindOf("Bom dia."), LearnedKind::Sentence);
    EXPECT_EQ(LearnedKindOf("?!"), LearnedKind::Terminators);
    EXPECT_EQ(LearnedKindOf("? "), LearnedKind::Nothing) << "a blank is no terminator";
    EXPECT_EQ(LearnedKindOf("bom dia"), LearnedKind::Words);
    EXPECT_EQ(LearnedKindOf(""), LearnedKind::Nothing);
}

TEST(NormalForm, KeepsOneBlankAtTheEndNoneAtTheStartAndTheRemainderInSmallLetters) {
    EXPECT_EQ(CollapseWhiteSpace("\r\n Bom \t\n dia \n"), "Bom dia ");
    EXPECT_EQ(CollapseWhiteSpace(" \n"), "");
    EXPECT_EQ(NormalizeSentence(" BOM  Água"_w), "bom água"_w);
    EXPECT_EQ(GetRemainder("ÁGUA"_w, "á"_w), "gua");
    EXPECT_EQ(GetRemainder("gato", "ca"), "gato");
    EXPECT_EQ(GetRemainder("ca", "casa"), "");
}

TEST(NormalForm, AWordOrSentenceIsAlsoLookedForInThePictogramsThatItMayBegin) {
    EXPECT_THAT(WordForms("", ""), ElementsAre(""));
    EXPECT_THAT(WordForms("Di", " Bom  Di"), ElementsAre("di", "[di", "[bom di"));
    EXPECT_THAT(WordForms("", "bom "), ElementsAre("", "[bom "));
    EXPECT_THAT(WordForms("q", "[eu] q"), ElementsAre("q", "[q")) << "no beginning of a caption";
    EXPECT_THAT(SentenceForms(" "), IsEmpty());
    EXPECT_THAT(SentenceForms("Eu quero"), ElementsAre("eu quero", "[eu] [quero"));
    EXPECT_THAT(SentenceForms("[eu] [quero]"), ElementsAre("[eu] [quero]", "eu quero"));
    EXPECT_THAT(SentenceForms("eu [quero]"),
                ElementsAre("eu [quero]", "eu quero", "eu quero", "[eu] [quero"));
}

} // namespace
} // namespace ondrilo
