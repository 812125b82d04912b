#include "targets/TextContext.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

TextContext AtEnd(TextView text) {
    return {Text(text), text.size()};
}

/// The insertion point stands at the "|".
TextContext At(TextView marked) {
    const auto cursor = marked.find('|');
    return {Text(marked.substr(0, cursor)) + Text(marked.substr(cursor + 1)), cursor};
}

TEST(TextContextTest, PreviousWordsReachAcrossTheSentenceAndNoFurtherThanOne) {
    const auto context = AtEnd("Sim. Olá. Tudo bem"_w);
    EXPECT_EQ(context.CurrentWordLeft(), "bem");
    EXPECT_EQ(context.PreviousWord(1), "Tudo");
    EXPECT_EQ(context.PreviousWord(2), "Olá"_w);
    EXPECT_EQ(context.PreviousWord(3), "");
    EXPECT_EQ(context.CurrentSentenceLeft(), " Tudo bem");
    EXPECT_EQ(context.PreviousSentence(1), " Olá."_w);
    EXPECT_EQ(context.PreviousSentence(2), "Sim.");
    EXPECT_EQ(context.PreviousSentence(3), "");
}

TEST(TextContextTest, AfterABlankThePreviousWordIsTheLastOne) {
    const auto context = AtEnd("Tudo bem ");
    EXPECT_EQ(context.CurrentWordLeft(), "");
    EXPECT_EQ(context.PreviousWord(1), "bem");
    EXPECT_EQ(context.PreviousWord(2), "Tudo");
}

TEST(TextContextTest, HyphenAndApostropheDoNotEndAWord) {
    EXPECT_EQ(AtEnd("o guarda-").CurrentWordLeft(), "guarda-");
    EXPECT_EQ(AtEnd("copo d'ág"_w).CurrentWordLeft(), "d'ág"_w);
}

TEST(TextContextTest, TheWordAroundTheInsertionPointIsCutThere) {
    const auto context = At("vou com|er. Sim");
    EXPECT_EQ(context.CurrentWordLeft(), "com");
    EXPECT_EQ(context.CurrentWordRight(), "er");
    EXPECT_EQ(context.CurrentSentenceRight(), "er.");
    EXPECT_EQ(At("vou| comer").CurrentWordRight(), "");
}

TEST(TextContextTest, OfSeveralTerminatorsInARowEachIsASentence) {
    EXPECT_EQ(AtEnd("Olá?! "_w).PreviousSentence(1), "!");
    EXPECT_EQ(AtEnd("Olá?! "_w).PreviousSentence(2), "Olá?"_w);
}

TEST(TextContextTest, MoreWordsThanASplitYieldsDoNotFreezeThePreviousWord) {
    Text text;
    for (int i = 0; i < 300; ++i)
        text += "palavra ";
    EXPECT_EQ(AtEnd(text + "fim ").PreviousWord(1), "fim");
    EXPECT_EQ(AtEnd(text + "fim ").LabelledPreviousWord(1), "fim");
}

TEST(TextContextTest, AnImpossibleInsertionPointOrAnEmptyTextGivesNothing) {
    for (const auto& context : {TextContext("Sim. Vou", 9), TextContext("", 0)}) {
        EXPECT_EQ(context.CurrentWordLeft() + context.CurrentWordRight() + context.PreviousWord(1), "");
        EXPECT_EQ(context.CurrentSentenceLeft() + context.CurrentSentenceRight(), "");
        EXPECT_EQ(context.PreviousSentence(1) + context.LabelledPreviousWord(1), "");
    }
}

TEST(LabelledContextTest, ATagThatHoldsATerminatorIsClosedAtItAndDoesNotLeakIntoTheNextSentence) {
    const auto context = AtEnd("vou [bom dia. sim] ja");
    EXPECT_EQ(context.LabelledPreviousSentence(1), "vou [bom dia.]");
    EXPECT_EQ(context.LabelledSentenceLeft(), " sim ja");
}

TEST(LabelledContextTest, ATagAcrossThreeSentencesIsRepairedInTheMiddleOneToo) {
    const auto context = AtEnd("[um. dois. tres] e");
    EXPECT_EQ(context.LabelledPreviousSentence(2), "[um.]");
    EXPECT_EQ(context.LabelledPreviousSentence(1), " dois.") << "the bracket that closes it has no beginning";
}

TEST(LabelledContextTest, WholeTagsStayAsTheyAre) {
    const auto context = AtEnd("[eu] vou. [bom dia] e ");
    EXPECT_EQ(context.LabelledPreviousSentence(1), "[eu] vou.");
    EXPECT_EQ(context.LabelledSentenceLeft(), " [bom dia] e ");
}

TEST(LabelledContextTest, ATagIsOnePreviousWordAcrossSentences) {
    const auto context = AtEnd("Sim. [bom dia] vou");
    EXPECT_EQ(context.LabelledPreviousWord(1), "[bom dia]");
    EXPECT_EQ(context.LabelledPreviousWord(2), "Sim");
    EXPECT_EQ(context.LabelledPreviousWord(3), "");
}

} // namespace
} // namespace ondrilo
