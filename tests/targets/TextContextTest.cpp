#include "targets/TextContext.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

/// The insertion point stands at the "|".
TextContext At(TextView marked) {
    const auto cursor = marked.find('|');
    return {Text(marked.substr(0, cursor)) + Text(marked.substr(cursor + 1)), cursor};
}

TEST(TextContextTest, PreviousWordsReachAcrossTheSentenceAndNoFurtherThanOne) {
    const auto context = At("Sim. Olá. Tudo bem|"_w);
    EXPECT_EQ(context.CurrentWordLeft(), "bem");
    EXPECT_EQ(context.PreviousWord(1), "Tudo");
    EXPECT_EQ(context.PreviousWord(2), "Olá"_w);
    EXPECT_EQ(context.PreviousWord(3), "");
    EXPECT_EQ(context.CurrentSentenceLeft(), " Tudo bem");
    EXPECT_EQ(context.PreviousSentence(1), " Olá."_w);
    EXPECT_EQ(context.PreviousSentence(2), "Sim.");
    EXPECT_EQ(context.PreviousSentence(3), "");
    EXPECT_EQ(At("Olá?! |"_w).PreviousSentence(1), "!") << "each terminator of a row ends one";
    EXPECT_EQ(At("Olá?! |"_w).PreviousSentence(2), "Olá?"_w);
}

TEST(TextContextTest, TheWordAroundTheInsertionPointIsCutThereAndNotAtAHyphenOrApostrophe) {
    const auto context = At("vou com|er. Sim");
    EXPECT_EQ(context.CurrentWordLeft(), "com");
    EXPECT_EQ(context.CurrentWordRight(), "er");
    EXPECT_EQ(context.CurrentSentenceRight(), "er.");
    EXPECT_EQ(At("vou| comer").CurrentWordRight(), "");
    EXPECT_EQ(At("o d'guarda-|"_w).CurrentWordLeft(), "d'guarda-"_w);
    EXPECT_EQ(At("Tudo bem |").CurrentWordLeft(), "");
    EXPECT_EQ(At("Tudo bem |").PreviousWord(1), "bem");
}

TEST(TextContextTest, MoreWordsThanASplitYieldsDoNotFreezeThePreviousWord) {
    Text text;
    for (int i = 0; i < 300; ++i)
        text += "palavra ";
    EXPECT_EQ(At(text + "fim |").PreviousWord(1), "fim");
    EXPECT_EQ(At(text + "fim |").LabelledPreviousWord(1), "fim");
}

TEST(TextContextTest, AnImpossibleInsertionPointOrAnEmptyTextGivesNothing) {
    for (const auto& context : {TextContext("Sim. Vou", 9), TextContext("", 0)}) {
        EXPECT_EQ(context.CurrentWordLeft() + context.CurrentWordRight() + context.PreviousWord(1), "");
        EXPECT_EQ(context.CurrentSentenceLeft() + context.CurrentSentenceRight(), "");
        EXPECT_EQ(context.PreviousSentence(1) + context.LabelledPreviousWord(1), "");
    }
}

TEST(LabelledContextTest, ATagThatHoldsATerminatorIsClosedAtItAndDoesNotLeakIntoTheNextSentence) {
    const auto context = At("[um. dois. tres] e|");
    EXPECT_EQ(context.LabelledPreviousSentence(2), "[um.]");
    EXPECT_EQ(context.LabelledPreviousSentence(1), " dois.") << "the bracket that closes it has no beginning";
    EXPECT_EQ(context.LabelledSentenceLeft(), " tres e");
}

TEST(LabelledContextTest, WholeTagsStayAsTheyAreAndAreOnePreviousWordAcrossSentences) {
    const auto context = At("[eu] vou. [bom dia] e |");
    EXPECT_EQ(context.LabelledPreviousSentence(1), "[eu] vou.");
    EXPECT_EQ(context.LabelledSentenceLeft(), " [bom dia] e ");
    EXPECT_EQ(context.LabelledPreviousWord(2), "[bom dia]");
    EXPECT_EQ(context.LabelledPreviousWord(3), "vou");
    EXPECT_EQ(context.LabelledPreviousWord(5), "");
}

} // namespace
} // namespace ondrilo
