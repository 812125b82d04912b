#include "tests/prediction/DictionaryFolder.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DictionaryLoad : public DictionaryFolder {};

TEST_F(DictionaryLoad, AWordKeepsItsFieldsAndABareOneCountsOnlyInTheTotal) {
    Write("geral.pal", "abrir 1523 V\r\nbom|dia 12\r\n\r\n   \r\ncasa\r\npreço 5glued\r\n"_w);
    EXPECT_THAT(Load(), IsEmpty());

    EXPECT_THAT(Words(), ElementsAre("abrir", "bom dia", "casa", "preço"_w));
    EXPECT_EQ(dictionary.WordTotals().general, 1523 + 12 + 1 + 5);
    EXPECT_EQ(dictionary.GetWord("abrir").WordClass(), "V");
    EXPECT_EQ(dictionary.GetWord("bom dia").WordClass(), "");
    EXPECT_EQ(dictionary.GetWord("casa").Frequency(), 0);
}

TEST_F(DictionaryLoad, NumbersThatNoCounterHoldsWrapInsteadOfEndingTheProgram) {
    Load({{"geral.pal", "a 2147483647\nb 2147483647\nc 99999999999999999999\nd -7\ne +3\nf 4294967297\n"}});
    EXPECT_EQ(dictionary.GetWord("c").Frequency(), -1);
    EXPECT_EQ(dictionary.GetWord("d").Frequency(), -7);
    EXPECT_EQ(dictionary.GetWord("f").Frequency(), 1);
    EXPECT_EQ(dictionary.WordTotals().general, -2 - 1 - 7 + 3 + 1);
    dictionary.AddUserWord("a", 2147483647);
    dictionary.AddUserWord("a", 2147483647);
    EXPECT_EQ(dictionary.GetWord("a").UserFrequency(), -2);
}

TEST_F(DictionaryLoad, OverlongLinesAreReadInPiecesAndOfAnyBytesWhatParses) {
    Load({{"geral.pal", Text(999, 'a') + "bb 5\n" + "c 2\n"}, {"geral.frs", Text(1499, 'a') + "b 5\n"}});
    EXPECT_THAT(Words(), ElementsAre(Text(999, 'a'), "bb", "c"));
    EXPECT_TRUE(dictionary.GetSentence("b"));
    const TextView cutOff("a b 2\na b", 9);
    Load({{"geral.pal", Text("\0\x01\xFF\n\x1B 3\na 1\nb", 13)}, {"geral.par", cutOff}});
    EXPECT_EQ(dictionary.WordCount(), 4);
    EXPECT_THAT(NextWords("a"), ElementsAre("b:2:0"));
}

TEST_F(DictionaryLoad, APairJoinsOnlyKnownWordsAndItsFileIsReadFieldByField) {
    Load({{"geral.pal", "a 1\nb 1\nbom|dia 1\nc 1\n"},
          {"geral.par", "a b 2\na x 50\na bom|dia 3\nx a 9\nb c\nb a\n4\nc b\nc c 1"}});
    EXPECT_THAT(NextWords("a"), ElementsAre("b:2:0", "bom dia:3:0"));
    // "b c" lacks its number, so the next record begins where it should stand.
    EXPECT_THAT(NextWords("b"), ElementsAre("a:4:0"));
    EXPECT_THAT(NextWords("c"), ElementsAre("c:1:0"));
    EXPECT_EQ(dictionary.WordTotals().generalPairs, 2 + 3 + 4 + 1);
}

TEST_F(DictionaryLoad, TokensOfAPairFileAreCutAtTheirLimit) {
    // The cut leaves "x...x", "a" and then no number; what follows is no record either.
    Load({{"geral.pal", "a 1\nb 1\n"},
          {"geral.par", Text(511, 'x') + "a b 7\n"},
          {"geral.frs", "a 1\nb 1\n"},
          {"geral.paf", Text(1007, 'x') + "a b 7\n"}});
    EXPECT_EQ(dictionary.WordTotals().generalPairs, 0);
    EXPECT_EQ(dictionary.SentenceTotals().generalPairs, 0);
}

TEST_F(DictionaryLoad, GeneralPairsGoToTheTailEvenWhenTheyAreOutOfOrderOrRepeated) {
    Load({{"geral.pal", "a 1\nb 1\nc 1\n"}, {"geral.par", "a c 1\na b 2\nb a 5\na b 3\n"}});
    EXPECT_THAT(NextWords("a"), ElementsAre("c:1:0", "b:2:0", "b:3:0"));
    EXPECT_EQ(dictionary.GetWord("a").NextCount(), 3);
    // The person's pair goes to the first that is not below it.
    dictionary.AddUserWordPair("a", "b");
    EXPECT_THAT(NextWords("a"), ElementsAre("b:0:1", "c:1:0", "b:2:0", "b:3:0"));
    EXPECT_EQ(dictionary.GetWord("a").NextCount(), 3);
}

TEST_F(DictionaryLoad, GeneralPairsReadAgainComeASecondTimeAndKeepWhatThePersonAdded) {
    Load({{"geral.pal", "a 1\nb 1\n"}, {"geral.par", "a b 2\n"}});
    dictionary.AddUserWord("d");
    dictionary.AddUserWordPair("a", "d");
    Write("geral.par", "a b 2\nd a 4\n");
    EXPECT_EQ(dictionary.LoadGeneralWordPairs(folder.Path() / "geral.par"), "");
    EXPECT_THAT(NextWords("a"), ElementsAre("b:2:0", "d:0:1", "b:2:0"));
    EXPECT_THAT(NextWords("d"), ElementsAre("a:4:0"));
    EXPECT_EQ(dictionary.WordTotals().generalPairs, 6);
}

TEST_F(DictionaryLoad, UserFilesAddToTheSameRecordsAndAReloadForgetsWhatWasNotSaved) {
    Load({{"geral.pal", "a 1 N\nc 2\n"},
          {"geral.par", "a c 5\n"},
          {"ana.pal", "a 3\nb\n"},
          {"ana.par", "a b 2\na c 4\nb a 1\n"}});
    EXPECT_EQ(dictionary.GetWord("a").UserFrequency(), 3);
    EXPECT_EQ(dictionary.GetWord("b").UserFrequency(), 1);
    EXPECT_EQ(dictionary.GetWord("b").WordClass(), "");
    EXPECT_THAT(NextWords("a"), ElementsAre("b:0:2", "c:5:4"));
    EXPECT_EQ(dictionary.GetWord("a").MaxNextFrequency(), 5);
    EXPECT_EQ(dictionary.GetWord("a").MaxUserNextFrequency(), 4);
    EXPECT_EQ(dictionary.WordTotals().user, 4);
    EXPECT_EQ(dictionary.WordTotals().userPairs, 7);
    EXPECT_FALSE(dictionary.UserWordsChanged() || dictionary.UserWordPairsChanged());

    dictionary.AddUserWord("a");
    dictionary.AddUserWord("d");
    EXPECT_THAT(dictionary.ReloadWords(), IsEmpty());
    EXPECT_THAT(Words(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(dictionary.GetWord("a").UserFrequency(), 3);
    EXPECT_FALSE(dictionary.UserWordsChanged());
}

TEST_F(DictionaryLoad, SentencesAreStoredNormalised) {
    Load({{"geral.frs", "Bom|dia. 5\ncomo|estás? 2\n"_w},
          {"geral.paf", "BOM|DIA. como|estás? 3\n"_w},
          {"ana.frs", "| 9\n"}});
    CDictionaryNextSentenceSet next;
    ASSERT_EQ(dictionary.NextSentenceSet(" \r\nbom \t DIA.", next), 1U);
    EXPECT_EQ(next[0].frequency, 3);
    EXPECT_EQ(dictionary.SentenceCount(), 2) << "a sentence of blanks would come back as the sentence \"9\"";
}

TEST_F(DictionaryLoad, EachMissingFileIsToldOnceInOrder) {
    const TemporaryFolder empty;
    const auto messages = dictionary.LoadProfileDictionaries(DataFolder(empty.Path()), "ana", true);
    EXPECT_THAT(messages, ElementsAre("Erro na abertura do ficheiro de palavras geral",
                                      "Erro na abertura do ficheiro dos pares de palavras geral",
                                      "Erro na abertura do ficheiro de palavras do utilizador",
                                      "Erro na abertura do ficheiro de pares de palavras do utilizador.",
                                      "Erro na abertura do ficheiro de frases",
                                      "Erro na abertura do ficheiro dos pares de frases geral",
                                      "Erro na abertura do ficheiro de frases do utilizador",
                                      "Erro na abertura do ficheiro de pares de frases do utilizador."));
    EXPECT_EQ(dictionary.FirstWord(), -1);
    EXPECT_FALSE(dictionary.FindWord("a").found);
    EXPECT_THAT(WithPrefix("a"), IsEmpty());
}

TEST_F(DictionaryLoad, ClassLinesThatDoNotParseCountTheValueBeforeThem) {
    const Files classes = {{"geral.cg", "N 100\nV\n\nADJ 5\nADJ 9\n"},
                           {"geral.pcg", "N V 40\nN\nN N 2\nN V 41\n"}};
    Load(classes);
    EXPECT_EQ(dictionary.wordClasses.Count(), 5);
    EXPECT_EQ(dictionary.wordClasses.Total(), 100 + 100 + 100 + 5 + 9);
    EXPECT_EQ(dictionary.wordClasses.Frequency("V"), 0);
    EXPECT_EQ(dictionary.wordClasses.Frequency("ADJ"), 5);
    EXPECT_EQ(dictionary.wordClassPairs.Total(), 40 + 40 + 2 + 41);
    EXPECT_EQ(dictionary.wordClassPairs.Frequency("N", "V"), 41);
    EXPECT_EQ(dictionary.wordClassPairs.Frequency("V", "N"), 0);
    Load();
    EXPECT_EQ(dictionary.wordClasses.Total(), 314) << "a second load counts anew";
}

TEST_F(DictionaryLoad, TooManyClassesAreRefusedWithoutLosingThePersonsFiles) {
    Text classes;
    for (int i = 0; i < 501; ++i)
        classes += "c" + std::to_string(i) + " 1\n";
    EXPECT_THAT(Load({{"geral.cg", classes}, {"ana.pal", "a 1\n"}}), IsEmpty());
    EXPECT_THROW(CWordClassSet().Load(folder.Path() / "geral.cg"), std::invalid_argument);
    EXPECT_EQ(dictionary.wordClasses.Count(), 500);
    EXPECT_TRUE(dictionary.GetWord("a"));
}

class FullDictionary : public DictionaryFolder {
  protected:
    void Fill(int words) {
        Text lines;
        for (int i = 0; i < words; ++i)
            lines += "w" + std::to_string(1'000'000 + i) + " 1\n";
        Write("geral.pal", lines);
    }
};

TEST_F(FullDictionary, TakesNoNewWordButCountsAKnownOne) {
    Fill(250'010);
    Load();
    EXPECT_EQ(dictionary.WordCount(), 250'000);
    EXPECT_EQ(dictionary.WordTotals().general, 250'000);
    dictionary.AddUserWord("a");
    EXPECT_EQ(dictionary.WordTotals().user, 0);
    EXPECT_FALSE(dictionary.GetWord("a"));
    dictionary.AddUserWord("w1000000", 4);
    EXPECT_EQ(dictionary.WordTotals().user, 4);
}

TEST_F(FullDictionary, GivesUpTheRarestUserWordsOnlyWhenLoadedForLearning) {
    Fill(249'996);
    Load({{"ana.pal", "a 2\nb 2\nw1000000 3\n"}});
    EXPECT_EQ(dictionary.GetWord("a").UserFrequency(), 2);
    Load({}, true);
    EXPECT_EQ(dictionary.GetWord("a").UserFrequency(), 0);
    EXPECT_EQ(dictionary.GetWord("b").UserFrequency(), 0);
    EXPECT_EQ(dictionary.GetWord("w1000000").UserFrequency(), 3);
    EXPECT_EQ(dictionary.WordTotals().user, 3);
    EXPECT_TRUE(dictionary.UserWordsChanged());
}

/// Two dictionaries that read the same general files.
class GeneralStoreTest : public DictionaryFolder {
  protected:
    GeneralStoreTest() {
        WriteLongAgo("geral.pal", "a 1\nb 2\nc\n", 10);
        WriteLongAgo("geral.par", "a b 5\na c 6\n", 10);
    }

    /// Files that were just written are always read again.
    void WriteLongAgo(const std::string& name, TextView bytes, int minutes) {
        std::filesystem::last_write_time(folder.Write(name, bytes),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::minutes(minutes));
    }
    std::vector<Text> LoadWords(CDictionary& into) {
        std::vector<Text> messages{into.LoadGeneralWords(folder.Path() / "geral.pal"),
                                   into.LoadGeneralWordPairs(folder.Path() / "geral.par")};
        std::erase(messages, Text());
        return messages;
    }

    std::shared_ptr<GeneralStore> store = std::make_shared<GeneralStore>();
    CDictionary ana{store};
    CDictionary rui{store};
};

TEST_F(GeneralStoreTest, UnchangedFilesAreReadOnceAndNothingOfOneDictionaryReachesAnother) {
    (void)LoadWords(ana);
    const auto* read = ana.Words().General().get();
    ana.AddUserWord("b", 4);
    ana.AddUserWordPair("a", "b", 4);
    ana.AddUserWord("aa");
    ana.Clear();
    EXPECT_EQ(ana.WordCount(), 0);

    EXPECT_TRUE(LoadWords(rui).empty());
    EXPECT_EQ(rui.Words().General().get(), read) << "what no dictionary uses must stay for the next";
    EXPECT_EQ(rui.WordCount(), 3);
    EXPECT_EQ(rui.GetWord("b").UserFrequency(), 0);
    EXPECT_EQ(rui.GetWord("a").MaxUserNextFrequency(), 0);
    EXPECT_EQ(rui.GetWord("a").MaxNextFrequency(), 6);
    EXPECT_EQ(rui.WordTotals().general, 4);
    EXPECT_EQ(rui.WordTotals().generalPairs, 11);
}

TEST_F(GeneralStoreTest, AFileThatChangedIsReadAgainWithThePairsThatHangOnIt) {
    (void)LoadWords(ana);
    WriteLongAgo("geral.pal", "b 2\nc 1\nd 1\n", 9);
    WriteLongAgo("geral.par", "b c 7\na d 8\n", 9);
    (void)LoadWords(rui);
    EXPECT_EQ(rui.WordTotals().generalPairs, 7);
    EXPECT_EQ(rui.GetWord("b").MaxNextFrequency(), 7);
    EXPECT_EQ(ana.GetWord("a").MaxNextFrequency(), 6) << "who has the old data keeps them";

    // The pairs did not change, but the numbers of their words did.
    WriteLongAgo("geral.pal", "a 1\nb 2\nc 1\nd 1\n", 8);
    (void)LoadWords(ana);
    EXPECT_EQ(ana.WordTotals().generalPairs, 15);
    EXPECT_EQ(ana.GetWord("b").MaxNextFrequency(), 7);

    std::filesystem::remove(folder.Path() / "geral.pal");
    EXPECT_THAT(LoadWords(rui), ElementsAre("Erro na abertura do ficheiro de palavras geral"));
    EXPECT_EQ(rui.WordTotals().general + rui.WordTotals().generalPairs, 0);
}

TEST_F(GeneralStoreTest, TheSameBytesServeAsWordsAndAsSentences) {
    WriteLongAgo("geral.pal", "Bom|Dia. 3\n", 10);
    EXPECT_EQ(ana.LoadGeneralWords(folder.Path() / "geral.pal"), "");
    EXPECT_EQ(ana.LoadGeneralSentences(folder.Path() / "geral.pal"), "");
    EXPECT_TRUE(ana.GetWord("Bom Dia."));
    EXPECT_EQ(ana.GetSentence("BOM dia.").Characters(), "bom dia.");
}

TEST_F(GeneralStoreTest, PairsThatComeAfterTheUsersJoinTheUsersWordsToo) {
    Write("ana.pal", "ab 1\n");
    (void)ana.LoadGeneralWords(folder.Path() / "geral.pal");
    (void)ana.LoadUserWords(folder.Path() / "ana.pal");
    Write("geral.par", "a ab 2\na b 5\n");
    (void)ana.LoadGeneralWordPairs(folder.Path() / "geral.par");
    EXPECT_EQ(ana.GetWord("a").NextCount(), 2);
    EXPECT_EQ(ana.WordTotals().generalPairs, 7);
}

} // namespace
} // namespace ondrilo
