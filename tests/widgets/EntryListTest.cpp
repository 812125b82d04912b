#include "dialogs/EntryListDlg.h"
#include "prediction/VocabularyLists.h"
#include "tests/widgets/DialogFixture.h"

namespace ondrilo {
namespace {

class EntryListDialog : public DialogFixture {
  protected:
    void Open(EntryList& entries) {
        dialog.emplace(host, entries);
        Show(*dialog);
    }
    [[nodiscard]] QStringList Rows() const {
        QStringList texts;
        for (int row = 0; row < Find<QListWidget>("entries").count(); ++row)
            texts.append(Find<QListWidget>("entries").item(row)->text());
        return texts;
    }

    CDictionary dictionary;
    std::optional<EntryListDlg> dialog;
};

TEST_F(EntryListDialog, WordsAreAddedCountedAndRemovedByKeysAlone) {
    dictionary.AddUserWord("gato", 7);
    WordList words(dictionary);
    Open(words);
    Press(Qt::Key_Return);
    Type("bom dia\r GATO\r");
    EXPECT_EQ(Find<QSpinBox>("valueBox").value(), 7);
    EXPECT_EQ(Shown(), (std::vector<Text>{Text(words.Texts().emptyName), Text(words.Texts().nameWithBlank),
                                          Text(words.Texts().nameExists)}));
    Type("Rato\rpato\r");
    EXPECT_EQ(Rows(), (QStringList{"gato : 7", "rato : 1", "pato : 1"}));

    Press(Qt::Key_F, Qt::AltModifier);
    Find<QSpinBox>("valueBox").selectAll();
    Type("125");
    EXPECT_EQ(Rows().back(), "pato : 125");
    Press(Qt::Key_O, Qt::AltModifier);
    Type("ra\r");
    EXPECT_EQ(QApplication::focusWidget(), &Find<QListWidget>("entries"));
    boxes.answers = {Answer::No, Answer::Yes, Answer::Yes};
    for (int i = 0; i < 3; ++i)
        Press(Qt::Key_Delete);
    EXPECT_EQ(Rows(), (QStringList{"pato : 125"})) << "after rato the row above it goes";
    EXPECT_EQ(words.Entries(), (std::vector<ListedEntry>{{"pato", "125"}}));
    EXPECT_EQ(Find<QSpinBox>("valueBox").value(), 125);
    EXPECT_EQ(Shown().size(), 3U);
}

TEST_F(EntryListDialog, NothingIsRemovedWithoutASelectionAndNothingChangesByBeingShown) {
    dictionary.AddUserSentence("bom dia.", 2'000'000);
    SentenceList sentences(dictionary);
    Open(sentences);
    Find<QListWidget>("entries").setFocus();
    Click("removeButton");
    EXPECT_EQ(Shown(), std::vector<Text>{"Seleccione primeiro uma frase."});
    Find<QLineEdit>("nameField").setFocus();
    Type(" Bom  dia.\r");
    EXPECT_EQ(Shown(), std::vector<Text>{Text(sentences.Texts().nameExists)});
    EXPECT_EQ(sentences.Entries().front().value, "2000000");

    boxes.answers = {Answer::Yes};
    Click("removeButton");
    EXPECT_FALSE(Find<QSpinBox>("valueBox").isEnabled());
    Click("removeButton");
    EXPECT_EQ(Shown().back(), "Lista de frases vazia!");
}

} // namespace
} // namespace ondrilo
