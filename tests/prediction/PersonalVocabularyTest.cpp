#include "prediction/VocabularyLists.h"
#include "tests/prediction/DictionaryFolder.h"
#include "tests/support/FullDisk.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DictionarySave : public DictionaryFolder {};

TEST_F(DictionarySave, WritesUserCountersInOrderWithBarsForBlanks) {
    Load({{"geral.pal", "bom|dia 12\ncasa 4\n"}});
    for (const TextView word : {"água"_w, TextView("casa"), TextView("bom dia"), TextView("[bom dia]")})
        dictionary.AddUserWord(word, 2);
    dictionary.AddUserWordPair("casa", "água"_w, 3);
    dictionary.AddUserWordPair("casa", "bom dia");
    dictionary.AddUserSentence("Olá,  tudo\nbem?"_w);
    dictionary.AddUserSentence("___");
    dictionary.AddUserSentencePair("___", "OLÁ, tudo bem?"_w, 7);
    EXPECT_TRUE(dictionary.SaveUserFiles());

    EXPECT_EQ(Read("ana.pal"), "[bom|dia] 2\nbom|dia 2\ncasa 2\nágua 2\n"_w);
    EXPECT_EQ(Read("ana.par"), "casa bom|dia 1\ncasa água 3\n"_w);
    EXPECT_EQ(Read("ana.frs"), "___ 1\nolá,|tudo|bem? 1\n"_w);
    EXPECT_EQ(Read("ana.paf"), "___ olá,|tudo|bem? 7\n"_w);
    EXPECT_FALSE(dictionary.UserWordsChanged() || dictionary.UserWordPairsChanged() ||
                 dictionary.UserSentencesChanged() || dictionary.UserSentencePairsChanged());
}

TEST_F(DictionarySave, AWordRemovedByHandTakesItsPairsWithIt) {
    Load({{"ana.pal", "a 1\nb 1\nc 1\nd -2\n"}, {"ana.par", "a b 1\na c 1\na d 1\nb a 1\nd a 1\n"}});
    EXPECT_TRUE(dictionary.RemoveUserWord("b"));
    EXPECT_FALSE(dictionary.RemoveUserWord("x"));
    EXPECT_EQ(dictionary.WordTotals().user, 0);
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.pal"), "a 1\nc 1\nd -2\n");
    EXPECT_EQ(Read("ana.par"), "a c 1\nd a 1\n");
}

TEST_F(DictionarySave, AFullDiskKeepsTheOldFilesAndTheChanges) {
    const std::tuple<std::string, Text, Text> files[] = {{"ana.pal", "a 1\nb 1\n", "a 1\nb 2\n"},
                                                         {"ana.par", "a b 1\n", "a b 2\n"},
                                                         {"ana.frs", "a. 1\nb. 1\n", "a. 1\nb. 2\n"},
                                                         {"ana.paf", "a. b. 1\n", "a. b. 2\n"},
                                                         {"ana.abr", "bd a\n", "bd b\n"}};
    for (const auto& [name, before, after] : files)
        Write(name, before);
    Load();
    dictionary.AddUserWord("b");
    dictionary.AddUserWordPair("a", "b");
    dictionary.AddUserSentence("b.");
    dictionary.AddUserSentencePair("a.", "b.");
    dictionary.abbreviations.Set("bd", "b");
    {
        const FullDisk disk(3);
        for (const SaveResult& saved :
             {dictionary.SaveUserWordPairs(), dictionary.SaveUserWords(), dictionary.SaveUserSentencePairs(),
              dictionary.SaveUserSentences(), dictionary.abbreviations.Save()})
            EXPECT_FALSE(saved);
    }
    for (const auto& [name, before, after] : files)
        EXPECT_EQ(Read(name), before);
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_TRUE(dictionary.abbreviations.Save());
    for (const auto& [name, before, after] : files)
        EXPECT_EQ(Read(name), after);
}

TEST_F(DictionarySave, UnchangedFilesAreLeftAloneAndAClearedDictionaryEmptiesNone) {
    Load({{"ana.pal", "a 1\nb\n"}, {"ana.par", "a b 1\n"}});
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.pal"), "a 1\nb\n");
    dictionary.AddUserWordPair("a", "b");
    dictionary.Clear();
    EXPECT_EQ(dictionary.WordCount(), 0);
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.par"), "a b 1\n");
}

TEST_F(DictionarySave, ASetFrequencyMovesTheTotal) {
    Load({{"ana.frs", "bom|dia. 4\nolá. 1\n"_w}});
    EXPECT_TRUE(dictionary.SetUserSentenceFrequency(" Bom dia.", 9));
    EXPECT_EQ(dictionary.SentenceTotals().user, 10);
    dictionary.RemoveRarestUserSentences();
    EXPECT_EQ(dictionary.SentenceTotals().user, 9);
    EXPECT_TRUE(dictionary.SaveUserSentences());
    EXPECT_EQ(Read("ana.frs"), "bom|dia. 9\n");
}

class Learning : public DictionaryFolder {
  protected:
    Learning() { Load(); }

    void Learn(TextView text) {
        const auto path = folder.Write("texto.txt", text);
        dictionary.LearnWordsFromFile(path);
        dictionary.LearnWordPairsFromFile(path);
        dictionary.LearnSentencesFromFile(path);
        dictionary.LearnSentencePairsFromFile(path);
    }
    /// Saves; the lines of words, pairs, sentences and their pairs.
    [[nodiscard]] Tokens Saved() {
        EXPECT_TRUE(dictionary.SaveUserFiles());
        return {Read("ana.pal"), Read("ana.par"), Read("ana.frs"), Read("ana.paf")};
    }
};

TEST_F(Learning, PairsDoNotCrossALineAndSentencesDo) {
    Learn("Olá amigo\r\nbom\r\n\r\nSim?! Não"_w);
    EXPECT_THAT(Saved(), ElementsAre("amigo 1\nbom 1\nnão 1\nolá 1\nsim 1\n"_w, "olá amigo 1\nsim não 1\n"_w,
                                     "não 1\nolá|amigo|bom|sim?! 1\n"_w, "olá|amigo|bom|sim?! não 1\n"_w));
}

TEST_F(Learning, ATextReadTwiceCountsTwiceAndNeitherItsEndNorTheNextPassFollowsASentence) {
    Learn("A b.\r\n");
    Learn("A b.\r\n");
    EXPECT_EQ(dictionary.SentenceTotals().user, 2);
    EXPECT_THAT(Saved(), ElementsAre("a 2\nb 2\n", "a b 2\n", "a|b. 2\n", ""));
}

TEST_F(Learning, AnOverlongLineIsLearnedInPieces) {
    Learn(Text(250, 'a') + " " + Text(250, 'b'));
    EXPECT_THAT(Words(), ElementsAre(Text(250, 'a'), "bb", Text(248, 'b')));
    EXPECT_EQ(dictionary.WordTotals().userPairs, 1);
}

TEST_F(Learning, TextsOfTheLimitAreIgnored) {
    dictionary.AddUserWord(Text(500, 'a'));
    EXPECT_FALSE(dictionary.UserWordsChanged());
    dictionary.AddUserWord(Text(499, 'a'));
    EXPECT_EQ(dictionary.WordCount(), 1);
    dictionary.AddUserWordPair(Text(499, 'a'), Text(500, 'a'));
    EXPECT_FALSE(dictionary.UserWordPairsChanged());
    dictionary.AddUserSentence(Text(1000, 'a'));
    dictionary.AddUserSentence(Text(500, ' ') + Text(999, 'a'));
    EXPECT_EQ(dictionary.SentenceCount(), 1);
    EXPECT_TRUE(dictionary.GetSentence(Text(999, 'a'))) << "blanks that are not stored do not count";
}

TEST_F(Learning, APairOfAnUnknownWordMarksAChangeAndNothingElse) {
    dictionary.AddUserWord("a");
    dictionary.AddUserWordPair("a", "b");
    EXPECT_TRUE(dictionary.UserWordPairsChanged());
    EXPECT_EQ(dictionary.WordTotals().userPairs, 0);
    EXPECT_THAT(NextWords("a"), IsEmpty());
}

class Abbreviations : public DictionaryFolder {
  protected:
    void LoadFrom(TextView bytes) { Load({{"ana.abr", bytes}}); }

    CAbbreviationExpansionSet& abbreviations = dictionary.abbreviations;
};

TEST_F(Abbreviations, AnExpansionKeepsItsBlanksAndTheMatchIsExact) {
    LoadFrom("bd bom   dia \r\n\nso\n  obg \t muito obrigado\r\n");
    EXPECT_EQ(abbreviations.Find("bd"), "bom   dia ");
    EXPECT_EQ(abbreviations.Find("obg"), "muito obrigado");
    EXPECT_EQ(abbreviations.Find("Bd"), std::nullopt);
    EXPECT_EQ(abbreviations.Entries().size(), 2U) << "a line of one field is no entry";
    LoadFrom("lg " + Text(76, 'x') + "b c\n"); // too long for one read
    EXPECT_EQ(abbreviations.Find("lg"), Text(76, 'x'));
    EXPECT_EQ(abbreviations.Find("b"), "c");
}

TEST_F(Abbreviations, TheFileIsWrittenByBucketAndWithinOneInTheOrderOfEntry) {
    LoadFrom("");
    // Hashes modulo 17: "a" 12, "b" 13, "r" and "\x83" 12 again.
    abbreviations.Set("b", "1");
    abbreviations.Set("r", "2");
    abbreviations.Set("a", "3");
    abbreviations.Set("\x83", "4");
    abbreviations.Set("r", "5");
    EXPECT_TRUE(abbreviations.Save());
    EXPECT_EQ(Read("ana.abr"), "a 3\n\x83 4\nr 5\nb 1\n");
    EXPECT_FALSE(abbreviations.Changed());
}

TEST_F(Abbreviations, OnlyARealRemovalIsAChange) {
    LoadFrom("bd bom dia\n");
    abbreviations.Remove("obg");
    EXPECT_FALSE(abbreviations.Changed());
    abbreviations.Remove("bd");
    EXPECT_TRUE(abbreviations.Changed());
    abbreviations.Reload();
    EXPECT_EQ(abbreviations.Find("bd"), "bom dia");
    EXPECT_FALSE(abbreviations.Changed());
}

TEST_F(Abbreviations, ASetThatGoesSavesItself) {
    const auto path = folder.Path() / "ana.abr";
    {
        CAbbreviationExpansionSet leaving;
        leaving.Load(path);
        leaving.Set("bd", "bom dia");
    }
    EXPECT_EQ(Read("ana.abr"), "bd bom dia\n");
    { CAbbreviationExpansionSet neverLoaded; }
}

using VocabularyLists = DictionaryFolder;
using Entries = std::vector<ListedEntry>;

TEST_F(VocabularyLists, WordsAreThePersonsAndTakeAWordThatIsKnownByItsRecord) {
    Load({{"geral.pal", "casa 5 N\ngato 3 N\n"}, {"ana.pal", "[bom|dia] 2\ngato 7\nrato 0\n"}});
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
    Load({{"ana.frs", "bom|dia. 4\n"}});
    SentenceList sentences(dictionary);
    EXPECT_EQ(sentences.Normalized(" Bom  Dia. "), "Bom  Dia.");
    EXPECT_EQ(sentences.Key("Bom  Dia."), sentences.Key("bom dia."));
    sentences.Change("Bom  Dia.", "9");
    sentences.Add("Até já!"_w);
    EXPECT_EQ(sentences.Entries(), (Entries{{Text("até já!"_w), "1"}, {"bom dia.", "9"}}));
}

TEST_F(VocabularyLists, AnAbbreviationOfGreatestLengthOutlivesItsFile) {
    Load({{"ana.abr", "obg muito obrigado\nbd bom dia\n"}});
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
