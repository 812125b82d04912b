#include "dialogs/EntryListDlg.h"
#include "prediction/VocabularyLists.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeMessageBoxes.h"

#include <QPushButton>
#include <QTest>

namespace ondrilo {
namespace {

class EntryListDialog : public testing::Test {
  protected:
    void Open(EntryList& entries) {
        dialog.emplace(DialogHost{desktop, boxes, record}, entries);
        dialog->show();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
    }
    template <typename Widget>
    Widget& Get(const char* name) {
        return *dialog->findChild<Widget*>(name);
    }
    /// Keys into whatever has the focus.
    void Type(TextView text) {
        for (const char c : text)
            QTest::keyClick(QApplication::focusWidget(), c);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    [[nodiscard]] QStringList Rows() {
        QStringList texts;
        for (int row = 0; row < Get<QListWidget>("entries").count(); ++row)
            texts.append(Get<QListWidget>("entries").item(row)->text());
        return texts;
    }
    [[nodiscard]] std::vector<Text> Shown() { return std::exchange(boxes.shown, {}); }

    CDictionary dictionary;
    FakeDesktop desktop;
    FakeMessageBoxes boxes;
    UserRecord record;
    std::optional<EntryListDlg> dialog;
};

TEST_F(EntryListDialog, WordsAreAddedCountedAndRemovedByKeysAlone) {
    dictionary.AddUserWord("gato", 7);
    WordList words(dictionary);
    Open(words);
    Press(Qt::Key_Return);
    Type("bom dia\r GATO\r");
    EXPECT_EQ(Get<QSpinBox>("valueBox").value(), 7);
    EXPECT_EQ(Shown(), (std::vector<Text>{Text(words.Texts().emptyName), Text(words.Texts().nameWithBlank),
                                          Text(words.Texts().nameExists)}));
    Type("Rato\rpato\r");
    EXPECT_EQ(Rows(), (QStringList{"gato : 7", "rato : 1", "pato : 1"}));

    Press(Qt::Key_F, Qt::AltModifier);
    Get<QSpinBox>("valueBox").selectAll();
    Type("125");
    EXPECT_EQ(Rows().back(), "pato : 125");
    Press(Qt::Key_O, Qt::AltModifier);
    Type("ra\r");
    EXPECT_EQ(QApplication::focusWidget(), &Get<QListWidget>("entries"));
    boxes.answers = {Answer::No, Answer::Yes, Answer::Yes};
    for (int i = 0; i < 3; ++i)
        Press(Qt::Key_Delete);
    EXPECT_EQ(Rows(), (QStringList{"pato : 125"})) << "after rato the row above it goes";
    EXPECT_EQ(words.Entries(), (std::vector<ListedEntry>{{"pato", "125"}}));
    EXPECT_EQ(Get<QSpinBox>("valueBox").value(), 125);
    EXPECT_EQ(Shown().size(), 3U);
}

TEST_F(EntryListDialog, NothingIsRemovedWithoutASelectionAndNothingChangesByBeingShown) {
    dictionary.AddUserSentence("bom dia.", 2'000'000);
    SentenceList sentences(dictionary);
    Open(sentences);
    Get<QListWidget>("entries").setFocus();
    Get<QPushButton>("removeButton").click();
    EXPECT_EQ(Shown(), std::vector<Text>{"Seleccione primeiro uma frase."});
    Get<QLineEdit>("nameField").setFocus();
    Type(" Bom  dia.\r");
    EXPECT_EQ(Shown(), std::vector<Text>{Text(sentences.Texts().nameExists)});
    EXPECT_EQ(sentences.Entries().front().value, "2000000");

    boxes.answers = {Answer::Yes};
    Get<QPushButton>("removeButton").click();
    EXPECT_FALSE(Get<QSpinBox>("valueBox").isEnabled());
    Get<QPushButton>("removeButton").click();
    EXPECT_EQ(Shown().back(), "Lista de frases vazia!");
}

TEST_F(EntryListDialog, AnExpansionIsTypedRightAfterItsAbbreviation) {
    AbbreviationList abbreviations(dictionary.abbreviations);
    Open(abbreviations);
    Type("bd\rbom dia\rObg\rmuito obrigado");
    Press(Qt::Key_Return);
    EXPECT_EQ(Rows(), (QStringList{"bd : bom dia", "obg : muito obrigado"}));
    EXPECT_EQ(dictionary.abbreviations.Find("obg"), "muito obrigado");
    EXPECT_TRUE(dialog->isVisible());
    Get<QPushButton>("okButton").click();
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

} // namespace
} // namespace ondrilo
