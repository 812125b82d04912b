#include "targets/CInternalWordProcessor.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeKeyOutput.h"

#include <gmock/gmock.h>

#include <array>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EditorTest : public testing::Test {
  protected:
    EditorTest() {
        keyboard.Initialize();
        EXPECT_TRUE(editor.Create());
    }

    /// Puts a picture at the end of the text, as a pictogram key does.
    void Insert(TextView label, TextView tag) {
        const auto position = editor.InsertImage("casa.bmp");
        ASSERT_TRUE(position);
        editor.SetImageLabels(*position, label, tag);
    }
    void Append(TextView text) {
        box.MoveCursor(static_cast<int>(box.text.size()));
        box.ReplaceSelection(text);
    }
    /// What was posted since the last call, as numbers without arguments.
    std::vector<Message> Posted() {
        std::vector<Message> messages;
        queue.Drain([&](const MessageEvent& event) { messages.push_back(event.message); });
        return messages;
    }

    std::unique_ptr<FakeTextSurface> owned = std::make_unique<FakeTextSurface>();
    FakeTextSurface& box = *owned;
    FakeKeyOutput output{&box};
    CKeyboard keyboard{output};
    FakeDesktop desktop;
    MessageQueue queue;
    CInternalWordProcessor editor{std::move(owned), keyboard, desktop, queue};
};

TEST_F(EditorTest, AnEmptyBoxAnswersWithNothingAndHasNothingToDelete) {
    EXPECT_EQ(editor.GetCurrentWord() + editor.GetTextWithLabels() + editor.GetLastImageLabel(), "");
    EXPECT_FALSE(editor.IsInsideWord() || editor.IsAtImage() || editor.IsAfterImage());
    editor.DeleteCurrentWord();
    editor.DeleteCurrentSentence();
    EXPECT_EQ(box.text, "");
}

TEST_F(EditorTest, ACompletionContinuesInSmallLettersOrReplacesWhatWasTypedWhateverIsSelected) {
    const struct {
        TextView before, word, sentence, after;
        bool isSelected = false;
    } cases[] = {
        {"Ca", "CASA", "", "Casa "},
        {"Casa ", "Bonita", "", "Casa Bonita "},
        {"um ca", "gato", "", "um gato "},
        {"Olá.  bom \n d"_w, "", "Bom dia", "Olá.  bom \n dia "_w},
        {"Olá. talvez"_w, "", "Bom dia", "Olá. Bom dia "_w},
        {"Olá.\ntalvez"_w, "", "Bom dia", "Olá.\nBom dia "_w},
        {"Olá. tal\nvez"_w, "", "Bom dia", "Olá. \nBom dia "_w},
        {"talvez", "", "Bom dia", "Bom dia "},
        {"um ca", "casa", "", "um casa ", true},
        {"Bom di", "", "bom dia.", "Bom dia. ", true},
    };
    for (const auto& text : cases) {
        SCOPED_TRACE(text.before);
        box.SetText(text.before);
        box.Select(text.isSelected ? 0 : box.cursor, box.cursor);
        box.hasFocus = false;
        text.word.empty() ? editor.WriteSentence(text.sentence) : editor.WriteWord(text.word);
        EXPECT_EQ(box.text, text.after);
        EXPECT_TRUE(box.hasFocus);
    }
}

TEST_F(EditorTest, DeletingASentenceStopsAtTheTerminatorBeforeIt) {
    box.SetText("Um. Dois. Três"_w);
    box.MoveCursor(8); // before the second full stop
    editor.DeleteCurrentSentenceLeft();
    EXPECT_EQ(box.text, "Um. Dois. Três"_w) << "a terminator right of the insertion point ends the sentence";
    box.MoveCursor(6);
    editor.DeleteCurrentSentence();
    EXPECT_EQ(box.text, "Um.  Três"_w);
    editor.DeleteCurrentSentenceLeft();
    EXPECT_EQ(box.text, "Um.  Três"_w) << "nothing but the blank that stays";
}

TEST_F(EditorTest, LineBreaksAreToldAsTwoCharactersAndCountedAsOnePosition) {
    box.SetText("Um\ndois. três\nquatro"_w);
    EXPECT_EQ(editor.GetTextWithLabels(), "Um\r\ndois. três\r\nquatro"_w);
    EXPECT_EQ(editor.GetCurrentSentenceLeft(), " três\r\nquatro"_w);
    EXPECT_EQ(editor.GetPreviousSentence(), "Um\r\ndois.");
    box.MoveCursor(3);
    EXPECT_EQ(editor.GetCurrentSentenceRight(), "dois.");
    box.MoveCursor(9);
    editor.DeleteCurrentSentence();
    EXPECT_EQ(box.text, "Um\ndois. ") << "the blank of the last sentence stays";
}

TEST_F(EditorTest, AWordIsDeletedOnBothSidesOfTheInsertionPointWhichIsTheEndOfASelection) {
    box.SetText("vou comer\nja");
    box.Select(7, 4);
    EXPECT_EQ(editor.GetCurrentWordLeft(), "com");
    editor.DeleteCurrentWord();
    EXPECT_EQ(box.text, "vou \nja");
    EXPECT_EQ(box.cursor, 4);
}

TEST_F(EditorTest, APictureIsToldByItsLabelsButTakesOnePosition) {
    box.SetText("vou ");
    Insert("bom dia", "[bom dia]");
    EXPECT_EQ(box.text.size(), 5U);
    EXPECT_EQ(editor.GetTextWithLabels(), "vou bom dia ");
    EXPECT_EQ(editor.GetTextWithTags(), "vou [bom dia] ");
    EXPECT_EQ(editor.GetCurrentWordLeft(), "");
    EXPECT_EQ(editor.GetPreviousWord(), "dia");
    EXPECT_EQ(editor.GetLabelledPreviousWord(), "[bom dia]");
    EXPECT_EQ(editor.GetLabelledSecondPreviousWord(), "vou");
    Append("ja");
    EXPECT_EQ(editor.GetCurrentWord(), "ja") << "the insertion point counts the labels before it";
    EXPECT_EQ(editor.GetLabelledSentenceLeft(), "vou [bom dia] ja");
    editor.DeleteCurrentWordLeft();
    EXPECT_EQ(editor.GetTextWithLabels(), "vou bom dia ");
}

TEST_F(EditorTest, ALabelledSentenceIsRepairedWhereAPictureHoldsItsTerminator) {
    Insert("ola. sim", "[ola. sim]");
    Append("eu");
    EXPECT_EQ(editor.GetLabelledPreviousSentence() + "|" + editor.GetLabelledSentence(), "[ola.]| sim eu");
    editor.DeleteCurrentSentenceLeft();
    EXPECT_EQ(editor.GetTextWithTags(), "[ola. sim] ") << "the picture that ends the sentence before stays";
}

TEST_F(EditorTest, DeletingASentenceTakesItsPicturesAsAWhole) {
    box.SetText("Sim.");
    Insert("casa azul", "[casa azul]");
    Append("\nfim. Depois");
    box.MoveCursor(4);
    EXPECT_EQ(editor.GetCurrentSentenceRight(), "casa azul \r\nfim.");
    editor.DeleteCurrentSentence();
    EXPECT_EQ(box.text, "Sim. Depois");
    box.SetText("Sim.");
    Insert("casa", "[casa]");
    Append(" azul");
    editor.DeleteCurrentSentenceLeft();
    EXPECT_EQ(box.text, "Sim.") << "a picture at its start is not the blank that stays";
    EXPECT_THAT(box.pictures, IsEmpty());
}

TEST_F(EditorTest, ThePictureBehindTheInsertionPointIsFoundThroughSeparatorsOnly) {
    box.SetText("o ");
    Insert("gato", "[gato]");
    EXPECT_TRUE(editor.IsAtImage());
    EXPECT_EQ(editor.GetImageLabelAtCursor(), "gato");
    Append(", ");
    EXPECT_FALSE(editor.IsAtImage());
    EXPECT_TRUE(editor.IsAfterImage());
    EXPECT_EQ(editor.GetImageLabelAtCursor() + editor.GetLastImageLabel(), "gato");
    Append("e ");
    EXPECT_FALSE(editor.IsAfterImage());
    EXPECT_EQ(editor.GetLastImageLabel(), "");
    box.MoveCursor(2);
    EXPECT_TRUE(editor.IsAtImage() && !editor.IsInsideWord()) << "in front of the picture";
}

TEST_F(EditorTest, OnlyThePicturesOfTheSentenceSoFarAreListed) {
    Insert("eu", "[eu]");
    Append(".");
    Insert("ela", "[ela]");
    Insert("come", "[come]");
    Insert("sopa", "[sopa]");
    box.MoveCursor(4);
    EXPECT_THAT(editor.GetSentenceImageLabels(), ElementsAre("ela", "come"));
}

TEST_F(EditorTest, LabelsOutliveAClearedTextAndAMissingPictureAddsNone) {
    Insert("um", "[um]");
    editor.ClearAll();
    EXPECT_EQ(box.text, "");
    EXPECT_FALSE(editor.InsertImage("ausente.txt"));
    Insert("dois", "[dois]");
    box.AppendPicture("sem etiqueta.bmp");
    EXPECT_EQ(editor.GetTextWithTags(), "[dois]  ");
}

TEST_F(EditorTest, UnderCapsLockPredictionsAreShownAsTheKeysWillWriteThem) {
    output.capsLock = true;
    keyboard.TypeText("ca");
    EXPECT_EQ(editor.GetWordDisplayText("casa"), "CASA");
    EXPECT_EQ(editor.AdaptWordCase("Olá"_w), "oLÁ"_w);
    editor.WriteWord("casa");
    EXPECT_EQ(box.text, "CASA ");
    output.capsLock = false;
    EXPECT_EQ(editor.GetWordDisplayText("Gato"), "gato") << "small, since it is typed in small letters";
    EXPECT_EQ(editor.GetSentenceDisplayText("Casa azul"), "CASA azul");
    editor.ClearAll();
    EXPECT_EQ(editor.GetSentenceDisplayText("Casa azul"), "Casa azul");
}

TEST_F(EditorTest, AWordOrSentenceEndsOnceHoweverManySeparatorsFollowAndNotAfterABackspace) {
    const auto endsOf = [this](TextView text) {
        keyboard.TypeText(text);
        std::vector<Message> messages = Posted();
        std::erase_if(messages,
                      [](Message m) { return m == Message::UM_KEY_DOWN || m == Message::UM_KEY_UP; });
        return messages;
    };
    EXPECT_THAT(endsOf("a. "), ElementsAre(Message::UM_CHAR, Message::UM_CHAR, Message::UM_WORD_END,
                                           Message::UM_SENTENCE_END, Message::UM_CHAR));
    keyboard.TypeText("a");
    keyboard.Backspace(1);
    Posted();
    EXPECT_THAT(endsOf(" "), ElementsAre(Message::UM_CHAR));
}

TEST_F(EditorTest, ABlockedKeyIsReportedAndWritesNothingAndADestroyedEditorReportsNothing) {
    editor.BlockKeys('A', 'A');
    keyboard.TapKey("a");
    EXPECT_EQ(box.text, "");
    EXPECT_THAT(Posted(), ElementsAre(Message::UM_KEY_DOWN, Message::UM_KEY_UP));
    editor.UnblockKeys('A', 'A');
    keyboard.TapKey("a");
    EXPECT_EQ(box.text, "a");
    Posted();
    editor.Destroy();
    keyboard.TypeText("a.");
    EXPECT_THAT(Posted(), IsEmpty());
}

TEST_F(EditorTest, TheTwentyFirstBlockedKeyIsDroppedUntilAnotherIsFreed) {
    editor.BlockKeys(vk::F1, vk::F1 + 18);
    editor.BlockKeys(vk::F1, vk::F1 + 19); // those listed already take no second entry
    editor.BlockKeys('A', 'A');
    EXPECT_TRUE(box.KeyDown('A'));
    editor.UnblockKeys(vk::F1, vk::F1);
    editor.BlockKeys('A', 'A');
    EXPECT_FALSE(box.KeyDown('A') || box.KeyDown(vk::F1 + 19));
    EXPECT_TRUE(box.KeyDown(vk::F1));
}

TEST_F(EditorTest, APointerThatStaysWhereItIsIsReportedOnce) {
    for (const Point position : {Point{3, 5}, {3, 5}, {-1, 5}})
        box.listener->OnPointerMoved(position);
    EXPECT_EQ(Posted(), std::vector<Message>(2, Message::UM_POINTER_MOVED));
}

TEST_F(EditorTest, ThePointerGoesToTheFirstPlaceOutsideARectangle) {
    box.area = {100, 100, 200, 50};
    const auto movedOutOf = [this](Rectangle rectangle) {
        desktop.pointer = {0, 0};
        editor.MovePointerOutOf(rectangle);
        return desktop.pointer;
    };
    EXPECT_EQ(movedOutOf({150, 100, 20, 20}), (Point{100, 100}));
    EXPECT_EQ(movedOutOf({50, 50, 100, 100}), (Point{150, 100}));
    EXPECT_EQ(movedOutOf({0, 0, 1000, 120}), (Point{100, 120}));
    EXPECT_EQ(movedOutOf({0, 0, 1000, 1000}), (Point{0, 0})) << "no point is left";
    desktop.pointer = {299, 149};
    EXPECT_TRUE(editor.IsPointerOverTarget());
}

} // namespace
} // namespace ondrilo
