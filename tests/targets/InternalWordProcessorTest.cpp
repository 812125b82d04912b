#include "targets/CInternalWordProcessor.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeKeyOutput.h"

#include <gmock/gmock.h>

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

TEST_F(EditorTest, AnEmptyBoxAnswersEveryQueryWithNothing) {
    EXPECT_EQ(editor.GetCurrentWord() + editor.GetPreviousWord() + editor.GetSecondPreviousWord(), "");
    EXPECT_EQ(editor.GetCurrentSentence() + editor.GetPreviousSentence() + editor.GetWrittenSentence(), "");
    EXPECT_EQ(editor.GetLabelledSentence() + editor.GetLabelledPreviousSentence(), "");
    EXPECT_EQ(editor.GetTextWithLabels() + editor.GetTextWithTags() + editor.GetLastImageLabel(), "");
    EXPECT_FALSE(editor.IsInsideWord() || editor.IsAtImage() || editor.IsAfterImage());
    editor.DeleteCurrentWord();
    editor.DeleteCurrentSentence();
    EXPECT_EQ(box.text, "");
}

TEST_F(EditorTest, ACompletedWordKeepsWhatWasTypedAndAddsTheRestInSmallLetters) {
    keyboard.TypeText("Ca");
    editor.WriteWord("CASA");
    EXPECT_EQ(box.text, "Casa ");
    editor.WriteWord("Bonita");
    EXPECT_EQ(box.text, "Casa Bonita ");
    EXPECT_TRUE(box.hasFocus);
}

TEST_F(EditorTest, ACompletionTakesNothingAwayThatIsSelected) {
    box.SetText("um ca");
    box.Select(0, 5);
    editor.WriteWord("casa");
    EXPECT_EQ(box.text, "um casa ");
    box.SetText("Bom di");
    box.Select(0, 6);
    editor.WriteSentence("bom dia.");
    EXPECT_EQ(box.text, "Bom dia. ");
}

TEST_F(EditorTest, AWordThatDoesNotContinueWhatWasTypedReplacesIt) {
    box.SetText("um ca");
    editor.WriteWord("gato");
    EXPECT_EQ(box.text, "um gato ");
}

TEST_F(EditorTest, ASentenceContinuesWhatWasTypedWhateverItsBlanks) {
    box.SetText("Olá.  bom \n d"_w);
    editor.WriteSentence("Bom dia a todos.");
    EXPECT_EQ(box.text, "Olá.  bom \n dia a todos. "_w);
}

TEST_F(EditorTest, AReplacedSentenceKeepsItsBlankAndItsParagraph) {
    for (const auto& [before, after] : {std::pair<TextView, TextView>{"Olá. talvez"_w, "Olá. Bom dia "_w},
                                        {"Olá.\ntalvez"_w, "Olá.\nBom dia "_w},
                                        {"Olá. tal\nvez"_w, "Olá. \nBom dia "_w},
                                        {"talvez", "Bom dia "}}) {
        box.SetText(before);
        editor.WriteSentence("Bom dia");
        EXPECT_EQ(box.text, after) << before;
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

TEST_F(EditorTest, AWordIsDeletedOnBothSidesOfTheInsertionPoint) {
    box.SetText("vou comer\nja");
    box.MoveCursor(7);
    editor.DeleteCurrentWord();
    EXPECT_EQ(box.text, "vou \nja");
    EXPECT_EQ(box.cursor, 4);
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

TEST_F(EditorTest, TheInsertionPointIsTheEndOfASelectionMadeBackwards) {
    box.SetText("vou comer");
    box.Select(9, 4);
    EXPECT_EQ(editor.GetCurrentWordLeft(), "comer");
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
    EXPECT_EQ(editor.GetLabelledPreviousSentence(), "[ola.]");
    EXPECT_EQ(editor.GetLabelledSentence(), " sim eu");
    EXPECT_EQ(editor.GetPreviousSentence(), "ola.");
    editor.DeleteCurrentSentenceLeft();
    EXPECT_EQ(editor.GetTextWithTags(), "[ola. sim] ") << "the picture that ends the sentence before stays";
}

TEST_F(EditorTest, APictureAtTheStartOfASentenceIsNotTheBlankThatStays) {
    box.SetText("Sim.");
    Insert("casa", "[casa]");
    Append(" azul");
    editor.DeleteCurrentSentenceLeft();
    EXPECT_EQ(box.text, "Sim.");
    EXPECT_THAT(box.pictures, IsEmpty());
}

TEST_F(EditorTest, DeletingTheRightPartTakesAPictureAsAWhole) {
    box.SetText("a ");
    Insert("casa azul", "[casa azul]");
    Append("\nfim. Depois");
    box.MoveCursor(2);
    EXPECT_EQ(editor.GetCurrentSentenceRight(), "casa azul \r\nfim.");
    editor.DeleteCurrentSentence();
    EXPECT_EQ(box.text, " Depois");
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
    EXPECT_EQ(editor.GetImageLabelAtCursor(), "");
    EXPECT_EQ(editor.GetLastImageLabel(), "gato");
    Append("e ");
    EXPECT_FALSE(editor.IsAfterImage());
    EXPECT_EQ(editor.GetLastImageLabel(), "");
    box.MoveCursor(2);
    EXPECT_TRUE(editor.IsAtImage()) << "in front of the picture";
    EXPECT_FALSE(editor.IsInsideWord());
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

TEST_F(EditorTest, AWordOrSentenceEndsOnceHoweverManySeparatorsFollow) {
    keyboard.TypeText("a. ");
    std::vector<Message> messages = Posted();
    std::erase(messages, Message::UM_KEY_DOWN);
    std::erase(messages, Message::UM_KEY_UP);
    EXPECT_THAT(messages, ElementsAre(Message::UM_CHAR, Message::UM_CHAR, Message::UM_WORD_END,
                                      Message::UM_SENTENCE_END, Message::UM_CHAR));
}

TEST_F(EditorTest, ASeparatorAfterABackspaceEndsNoWord) {
    keyboard.TypeText("a");
    keyboard.Backspace(1);
    keyboard.TypeText(" ");
    EXPECT_EQ(box.text, " ");
    EXPECT_THAT(Posted(), testing::Not(testing::Contains(Message::UM_WORD_END)));
}

TEST_F(EditorTest, ABlockedKeyIsReportedAndWritesNothing) {
    editor.BlockKeys('A', 'A');
    output.KeyDown('A');
    output.KeyUp('A');
    EXPECT_EQ(box.text, "");
    EXPECT_THAT(Posted(), ElementsAre(Message::UM_KEY_DOWN, Message::UM_KEY_UP));
    editor.UnblockKeys('A', 'A');
    keyboard.TapKey("a");
    EXPECT_EQ(box.text, "a");
}

TEST_F(EditorTest, TheTwentyFirstBlockedKeyIsDroppedUntilAnotherIsFreed) {
    editor.BlockKeys(vk::F1, vk::F1 + 19);
    editor.BlockKeys(vk::F1, vk::F1); // listed already: takes no second entry
    editor.BlockKeys('A', 'A');
    EXPECT_TRUE(box.KeyDown('A'));
    editor.UnblockKeys(vk::F1, vk::F1 + 1);
    editor.BlockKeys('A', 'A');
    EXPECT_FALSE(box.KeyDown('A'));
    EXPECT_FALSE(box.KeyDown(vk::F1 + 19));
    EXPECT_TRUE(box.KeyDown(vk::F1));
}

TEST_F(EditorTest, AMovedPointerIsReportedOnlyWhenItsLowBitsChange) {
    box.listener->OnPointerMoved({3, 5});
    box.listener->OnPointerMoved({3, 5});
    box.listener->OnPointerMoved({3 + 256, 5});
    box.listener->OnPointerMoved({-1, 5});
    std::vector<MessageEvent> events;
    queue.Drain([&](const MessageEvent& event) { events.push_back(event); });
    EXPECT_THAT(events, ElementsAre(MessageEvent{Message::UM_POINTER_MOVED, 0, 0x00050003},
                                    MessageEvent{Message::UM_POINTER_MOVED, 0, 0x000500FF}));
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

TEST_F(EditorTest, ADestroyedEditorReportsNothing) {
    editor.Destroy();
    keyboard.TypeText("a.");
    EXPECT_THAT(Posted(), IsEmpty());
}

} // namespace
} // namespace ondrilo
