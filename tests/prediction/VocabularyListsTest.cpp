#include "prediction/VocabularyLists.h"

#include "tests/prediction/DictionaryFolder.h"

namespace ondrilo {
namespace {

using VocabularyLists = DictionaryFolder;
using Entries = std::vector<ListedEntry>;

TEST_F(VocabularyLists, WordsAreThePersonsAndTakeAWordThatIsKnownByItsRecord) {
    Write("geral.pal", "casa 5 N\ngato 3 N\n");
    Write("ana.pal", "[bom|dia] 2\ngato 7\nrato 0\n");
    Load();
    WordList words(dictionary);
    EXPECT_EQ(words.Entries(), (Entries{{"[bom dia]", "2"}, {"gato", "7"}}));

    EXPECT_EQ(words.Normalized("  ÁGUA\t"_w), "água"_w);
    EXPECT_EQ(words.Add("casa"), "1");
    EXPECT_EQ(words.Add("pato"), "1");
    words.Change("pato", "40");
    words.Remove("gato");
    EXPECT_EQ(words.Entries(), (Entries{{"[bom dia]", "2"}, {"casa", "1"}, {"pato", "40"}}));
    EXPECT_EQ(dictionary.GetWord("casa").Frequency(), 5);
    EXPECT_TRUE(dictionary.SaveUserWords());
    EXPECT_EQ(Read("ana.pal"), "[bom|dia] 2\ncasa 1\npato 40\n");
}

TEST_F(VocabularyLists, SentencesAreToldApartByTheFormInWhichTheyAreStored) {
    Write("ana.frs", "bom|dia. 4\n");
    Load();
    SentenceList sentences(dictionary);
    EXPECT_EQ(sentences.Normalized(" Bom  Dia. "), "Bom  Dia.");
    EXPECT_EQ(sentences.Key("Bom  Dia."), sentences.Key("bom dia."));
    sentences.Change("Bom  Dia.", "9");
    sentences.Add("Até já!"_w);
    EXPECT_EQ(sentences.Entries(), (Entries{{Text("até já!"_w), "1"}, {"bom dia.", "9"}}));
}

TEST_F(VocabularyLists, AnAbbreviationOfGreatestLengthOutlivesItsFile) {
    Write("ana.abr", "obg muito obrigado\nbd bom dia\n");
    Load();
    AbbreviationList list(dictionary.abbreviations);
    EXPECT_EQ(list.Entries(), (Entries{{"bd", "bom dia"}, {"obg", "muito obrigado"}}));
    EXPECT_EQ(list.Add("qq"), "");
    const Text longest(list.ValueLimit("qq"), 'x');
    list.Change("qq", longest);
    list.Remove("bd");
    EXPECT_TRUE(dictionary.abbreviations.Save());
    dictionary.abbreviations.Reload();
    EXPECT_EQ(list.Entries(), (Entries{{"obg", "muito obrigado"}, {"qq", longest}}));
}

} // namespace
} // namespace ondrilo
