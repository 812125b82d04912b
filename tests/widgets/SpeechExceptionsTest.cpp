#include "dialogs/CSpeechSynthesizerExceptionsDlg.h"
#include "tests/support/FakeSpeechEngine.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/widgets/DialogFixture.h"

#include <optional>

namespace ondrilo {
namespace {

class SpeechExceptionsTest : public DialogFixture {
  protected:
    void Open(TextView file) {
        folder.Write("Ana_text_exceptions.txt", file);
        dialog.emplace(host, engine, DataFolder(folder.Path()), "Ana", SpeechManner{});
        Show(*dialog);
    }
    /// As the mouse does: the button takes the focus.
    void Click(const char* name) { QTest::mouseClick(&Find<QAbstractButton>(name), Qt::LeftButton); }
    [[nodiscard]] QLineEdit& Replacement() { return Find<QLineEdit>("replacementField"); }
    [[nodiscard]] QListWidget& Rows() { return Find<QListWidget>("exceptions"); }
    [[nodiscard]] Text File() const { return folder.Read("Ana_text_exceptions.txt"); }

    TemporaryFolder folder;
    FakeSpeechEngine engine;
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
    EXPECT_EQ(Rows().currentItem()->text(), "abc:a be ce");
    EXPECT_EQ(File(), "abc:a be ce\nbd:bom dia\n");

    Click("newButton");
    Type("BD\r");
    EXPECT_EQ(Shown(), std::vector<Text>{Text("Já existe essa excepção!"_w)});
    EXPECT_EQ(Replacement().text(), "bom dia");
    Replacement().selectAll();
    Type("abc");
    Click("hearButton");
    EXPECT_EQ(engine.said.back().text, "a be ce") << "the replacement is itself replaced";
    Type("\x1b");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(File(), "abc:a be ce\nbd:abc\n");
}

TEST_F(SpeechExceptionsTest, AChangedReplacementStaysWithItsTextWhereverTheFocusGoes) {
    Open("bd:bom dia\nobg:obrigado\n");
    Rows().setCurrentRow(0);
    Replacement().setFocus();
    Type("!");
    QTest::mouseClick(Rows().viewport(), Qt::LeftButton, {}, Rows().visualItemRect(Rows().item(1)).center());
    EXPECT_EQ(File(), "bd:bom dia!\nobg:obrigado\n");
    EXPECT_EQ(Replacement().text(), "obrigado");
    Replacement().setFocus();
    Type("!");
    Press(Qt::Key_N, Qt::AltModifier);
    QTRY_VERIFY(Find<QLineEdit>("textField").hasFocus());
    EXPECT_EQ(File(), "bd:bom dia!\nobg:obrigado!\n");
    Type(" \t");
    EXPECT_EQ(Shown(), std::vector<Text>{"Texto vazio!"});
    Type("perdido\t");
    EXPECT_EQ(File(), "bd:bom dia!\nobg:obrigado!\n");
}

TEST_F(SpeechExceptionsTest, ARowIsRemovedOnlyWhenOneIsSelectedAndTheAnswerIsYes) {
    Open("a:1\nb:2\nc:3\n");
    Click("removeButton");
    Rows().setCurrentRow(2);
    boxes.answers = {Answer::No, Answer::Yes, Answer::Yes, Answer::Yes};
    Click("removeButton");
    EXPECT_EQ(Rows().count(), 3);
    Click("removeButton");
    EXPECT_EQ(Rows().currentRow(), 1);
    EXPECT_EQ(Replacement().text(), "2");
    Rows().setCurrentRow(0);
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
