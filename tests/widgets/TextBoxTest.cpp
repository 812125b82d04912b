#include "platform/qt/QtConversion.h"
#include "targets/ui/CTextBox.h"
#include "tests/support/FakeKeyOutput.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/widgets/Images.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what the box tells: "down 65", "char a".
class Listener : public TextSurfaceListener {
  public:
    void OnKeyDown(int code, std::int32_t) override { told.push_back("down " + std::to_string(code)); }
    void OnKeyUp(int code, std::int32_t) override { told.push_back("up " + std::to_string(code)); }
    [[nodiscard]] bool IsBlocked(int code) const override { return code == blocked; }
    void OnCharacter(char character, std::int32_t) override { told.push_back(Text("char ") + character); }
    void OnMouseButton(Message button) override { buttons.push_back(button); }
    void OnPointerMoved(Point) override {}

    int blocked = -1;
    std::vector<Text> told;
    std::vector<Message> buttons;
};

class TextBoxTest : public testing::Test {
  protected:
    TextBoxTest() {
        SavePicture(folder.Path() / "p.bmp", {20, 30}, Qt::red);
        box.SetListener(&listener);
        box.SetFontName("DejaVu Sans");
        box.SetFontSize(12);
        box.SetWidth(400);
        box.SetHeight(120);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&box));
    }

    /// As the X server sends it: with the symbol that the key gives under the modifiers.
    void Key(Qt::Key key, quint32 symbol, const char* text,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, 38, symbol, 0, text);
            QApplication::sendEvent(&box, &event);
            EXPECT_TRUE(event.isAccepted()) << "the main window would report the key once more";
        }
    }
    void Write(const char* letters) {
        for (const QChar letter : QString(letters))
            Key(Qt::Key_unknown, letter.unicode(), QString(letter).toUtf8());
        listener.told.clear();
    }

    TemporaryFolder folder;
    Listener listener;
    FakeKeyOutput layout;
    CTextBox box{layout, nullptr};
};

TEST_F(TextBoxTest, ReportsEachKeyAsItIsOnTheLayoutBeforeItsCharacterAndWritesIt) {
    Key(Qt::Key_A, XKB_KEY_a, "a");
    EXPECT_THAT(std::exchange(listener.told, {}), ElementsAre("down 65", "char a", "up 65"));
    Key(Qt::Key_Slash, XKB_KEY_slash, "/", Qt::ShiftModifier);
    EXPECT_THAT(std::exchange(listener.told, {}), ElementsAre("down 55", "char /", "up 55"));
    Key(Qt::Key_5, XKB_KEY_KP_5, "5", Qt::KeypadModifier);
    EXPECT_THAT(listener.told, ElementsAre("down 101", "char 5", "up 101"));
    EXPECT_EQ(box.PlainText(), "a/5");
    EXPECT_EQ(box.SelectionEnd(), 3);
}

TEST_F(TextBoxTest, SwallowsABlockedKeyAfterReportingIt) {
    listener.blocked = vk::F1;
    Key(Qt::Key_F1, XKB_KEY_F1, "");
    listener.blocked = 'B';
    Key(Qt::Key_B, XKB_KEY_b, "b");
    EXPECT_THAT(listener.told, ElementsAre("down 112", "up 112", "down 66", "up 66"));
    EXPECT_EQ(box.PlainText(), "");
}

TEST_F(TextBoxTest, TellsALetterWithAccentAsItsStrokesWhicheverWayItComes) {
    Key(Qt::Key_Ecircumflex, XKB_KEY_ecircumflex, "ê");
    const auto typed = std::exchange(listener.told, {});
    EXPECT_EQ(typed[0], "down 16") << "the dead key needs Shift";
    EXPECT_EQ(typed[2], "down 69");

    QInputMethodEvent composed;
    composed.setCommitString("ê");
    QApplication::sendEvent(&box, &composed);
    EXPECT_EQ(listener.told, std::vector<Text>(typed.begin(), typed.begin() + 4));
    EXPECT_EQ(box.PlainText(), "êê"_w);
}

TEST_F(TextBoxTest, ASignWithAltGrComesAsAllTheKeysThatItWasCountedAs) {
    Key(Qt::Key_AltGr, XKB_KEY_ISO_Level3_Shift, "");
    EXPECT_THAT(listener.told, ElementsAre("down 17", "down 18", "up 18", "up 17"));
    Key(Qt::Key_At, XKB_KEY_at, "@");
    const auto downs = std::count_if(listener.told.begin(), listener.told.end(),
                                     [](const Text& told) { return told.starts_with("down"); });
    EXPECT_EQ(downs, CKeyboard(layout).CountKeys("@"));
}

TEST_F(TextBoxTest, TakesNoCharacterThatTheSystemCannotHold) {
    Key(Qt::Key_unknown, XKB_KEY_Cyrillic_zhe, "ж");
    EXPECT_EQ(box.PlainText(), "");
    QApplication::clipboard()->setText("a\r\nж—€");
    box.paste();
    EXPECT_EQ(box.PlainText(), "a\n?—€"_w);
}

TEST_F(TextBoxTest, EachPictureIsOnePositionWithItsNumberThroughUndoAndRedo) {
    Write("ab");
    const auto first = box.AppendPicture(folder.Path() / "p.bmp");
    ASSERT_EQ(first, 2);
    box.SetPictureIndex(2, 7);
    ASSERT_EQ(box.AppendPicture(folder.Path() / "p.bmp"), 3);
    box.SetPictureIndex(3, 7);
    Write("c");
    EXPECT_EQ(box.PlainText(), "ab  c");
    EXPECT_EQ(box.SelectionEnd(), 5);
    EXPECT_THAT(box.Pictures(), ElementsAre(SurfacePicture{2, 7}, SurfacePicture{3, 7}));

    box.ClearRange(0, 3);
    EXPECT_THAT(box.Pictures(), ElementsAre(SurfacePicture{0, 7}));
    EXPECT_EQ(box.SelectionEnd(), 0);
    box.undo();
    EXPECT_EQ(box.PlainText(), "ab  c");
    EXPECT_THAT(box.Pictures(), ElementsAre(SurfacePicture{2, 7}, SurfacePicture{3, 7}));
    box.redo();
    EXPECT_THAT(box.Pictures(), ElementsAre(SurfacePicture{0, 7}));
}

TEST_F(TextBoxTest, PicturesAreDrawnAndLeftOutOfACutThatCanBeUndone) {
    Write("casa ");
    box.AppendPicture(folder.Path() / "p.bmp");
    EXPECT_EQ(box.AppendPicture(folder.Write("no.bmp", "x")), std::nullopt);
    EXPECT_EQ(CountPixels(box.grab().toImage(), qRgb(255, 0, 0)), 20 * 30);
    box.selectAll();
    box.cut();
    EXPECT_EQ(QApplication::clipboard()->text(), "casa ");
    EXPECT_EQ(box.PlainText(), "");
    box.undo();
    EXPECT_EQ(box.Pictures().size(), 1U);
}

TEST_F(TextBoxTest, UndoingTakesBackAWordOrAPasteAndNotTheWholeText) {
    const auto writeSpace = [this] {
        Key(Qt::Key_Space, XKB_KEY_space, " ");
    };
    Write("um");
    writeSpace();
    Write("dois");
    QApplication::clipboard()->setText("!");
    box.paste();
    box.paste();
    for (const char* left : {"um dois!", "um dois", "um ", ""}) {
        box.undo();
        EXPECT_EQ(box.PlainText(), left);
    }
}

TEST_F(TextBoxTest, ANewFontReachesWhatStandsThereAndIsNoStepToUndo) {
    Write("a");
    const auto small = box.grab().toImage();
    box.SetFontSize(30);
    EXPECT_GT(InkOf(box.grab().toImage()).height(), InkOf(small).height());
    Key(Qt::Key_Return, XKB_KEY_Return, "\r");
    EXPECT_EQ(box.PlainText(), "a\n");
    box.ReplaceSelection("b\nc");
    EXPECT_EQ(box.PlainText(), "a\nb\nc");
    box.undo();
    EXPECT_EQ(box.PlainText(), "a\n");
}

TEST_F(TextBoxTest, ADisabledMouseIsReportedButMovesNothing) {
    Write("casa");
    const auto clickAtStart = [this] {
        QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, {1, 10});
    };
    box.SetMouseEnabled(false);
    clickAtStart();
    EXPECT_EQ(box.SelectionEnd(), 4);
    box.SetMouseEnabled(true);
    clickAtStart();
    EXPECT_EQ(box.SelectionEnd(), 0);
    EXPECT_EQ(listener.buttons.size(), 4U);
}

TEST_F(TextBoxTest, IsATextForAssistiveProgramsAndItsCaretMovesOnTheScreen) {
    auto* accessible = QAccessible::queryAccessibleInterface(&box);
    EXPECT_EQ(accessible->role(), QAccessible::EditableText);
    EXPECT_EQ(accessible->text(QAccessible::Name), "Área de Trabalho");
    const auto before = box.CaretPosition();
    Write("casa");
    EXPECT_EQ(accessible->textInterface()->text(0, 4), "casa");
    EXPECT_GT(box.CaretPosition().x, before.x + 10);
    EXPECT_EQ(box.CaretPosition().y, before.y);
}

} // namespace
} // namespace ondrilo
