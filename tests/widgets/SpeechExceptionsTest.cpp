#include "dialogs/CSpeechSynthesizerExceptionsDlg.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/FakeSpeechEngine.h"
#include "tests/support/TemporaryFolder.h"

#include <QAbstractButton>
#include <QTest>
#include <gtest/gtest.h>

#include <optional>

namespace ondrilo {
namespace {

class SpeechExceptionsTest : public testing::Test {
  protected:
    void Open(TextView file) {
        folder.Write("Ana_text_exceptions.txt", file);
        dialog.emplace(DialogHost{desktop, boxes, record}, engine, DataFolder(folder.Path()), "Ana",
                       SpeechManner{});
        dialog->show();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
    }
    template <typename Widget>
    Widget& Find(const char* name) {
        return *dialog->findChild<Widget*>(name);
    }
    /// As the mouse does: the button takes the focus.
    void Click(const char* name) { QTest::mouseClick(&Find<QAbstractButton>(name), Qt::LeftButton); }
    /// Into whatever has the focus.
    void Type(const char* keys) {
        for (; *keys; ++keys)
            QTest::keyClick(QApplication::focusWidget(), *keys);
    }
    [[nodiscard]] Text File() const { return folder.Read("Ana_text_exceptions.txt"); }
    [[nodiscard]] std::vector<Text> Shown() { return std::exchange(boxes.shown, {}); }

    TemporaryFolder folder;
    FakeSpeechEngine engine;
    FakeDesktop desktop;
    FakeMessageBoxes boxes;
    UserRecord record;
    std::optional<CSpeechSynthesizerExceptionsDlg> dialog;
};

TEST_F(SpeechExceptionsTest, ANewExceptionIsWrittenStepByStepAndCancelUndoesNothing) {
    Open("bd:bom dia\n");
    Click("newButton");
    Type(" ABC\t");
    EXPECT_TRUE(Find<QLineEdit>("textField").isReadOnly());
    EXPECT_EQ(File(), "abc:\nbd:bom dia\n");
    Type("a: be ce");
    Click("hearButton");
    EXPECT_EQ(engine.said.back().text, "a be ce") << "a colon could not be read back";
    EXPECT_EQ(Find<QListWidget>("exceptions").currentItem()->text(), "abc:a be ce");
    EXPECT_EQ(File(), "abc:a be ce\nbd:bom dia\n");

    Click("newButton");
    Type("BD\r");
    EXPECT_EQ(Shown(), std::vector<Text>{Text("Já existe essa excepção!"_w)});
    EXPECT_EQ(Find<QLineEdit>("replacementField").text(), "bom dia");
    Find<QLineEdit>("replacementField").selectAll();
    Type("abc");
    Click("hearButton");
    EXPECT_EQ(engine.said.back().text, "a be ce") << "the replacement is itself replaced";
    Type("\x1b");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(File(), "abc:a be ce\nbd:abc\n");
}

TEST_F(SpeechExceptionsTest, AChangedReplacementStaysWithItsTextWhereverTheFocusGoes) {
    Open("bd:bom dia\nobg:obrigado\n");
    auto& rows = Find<QListWidget>("exceptions");
    rows.setCurrentRow(0);
    Find<QLineEdit>("replacementField").setFocus();
    Type("!");
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(rows.item(1)).center());
    EXPECT_EQ(File(), "bd:bom dia!\nobg:obrigado\n");
    EXPECT_EQ(Find<QLineEdit>("replacementField").text(), "obrigado");
    Find<QLineEdit>("replacementField").setFocus();
    Type("!");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
    QTRY_VERIFY(Find<QLineEdit>("textField").hasFocus());
    EXPECT_EQ(File(), "bd:bom dia!\nobg:obrigado!\n");
    Type(" \t");
    EXPECT_EQ(Shown(), std::vector<Text>{"Texto vazio!"});
    Type("perdido\t");
    EXPECT_EQ(File(), "bd:bom dia!\nobg:obrigado!\n");
}

TEST_F(SpeechExceptionsTest, ARowIsRemovedOnlyWhenOneIsSelectedAndTheAnswerIsYes) {
    Open("a:1\nb:2\nc:3\n");
    auto& rows = Find<QListWidget>("exceptions");
    Click("removeButton");
    rows.setCurrentRow(2);
    boxes.answers = {Answer::No, Answer::Yes, Answer::Yes, Answer::Yes};
    Click("removeButton");
    EXPECT_EQ(rows.count(), 3);
    Click("removeButton");
    EXPECT_EQ(rows.currentRow(), 1);
    EXPECT_EQ(Find<QLineEdit>("replacementField").text(), "2");
    rows.setCurrentRow(0);
    Click("removeButton");
    EXPECT_EQ(File(), "b:2\n");
    EXPECT_EQ(Find<QLineEdit>("textField").text(), "b");
    Click("removeButton");
    Click("removeButton");
    const Text question("Quer mesmo apagar esta excepção?"_w);
    EXPECT_EQ(Shown(),
              (std::vector<Text>{Text("Seleccione primeiro uma excepção de síntese de fala."_w), question,
                                 question, question, question, Text("Lista de excepções vazia!"_w)}));
}

} // namespace
} // namespace ondrilo
