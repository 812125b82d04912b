#include "text/Splitter.h"

#include "text/Classes.h"
#include "text/NormalForm.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

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
