#include "tests/prediction/DictionaryFolder.h"
#include "tests/support/FullDisk.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

class DictionarySave : public DictionaryFolder {};

TEST_F(DictionarySave, WritesUserCountersInOrderWithBarsForBlanks) {
    Write("geral.pal", "bom|dia 12\ncasa 4\n");
    (void)Load();
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
    Write("ana.pal", "a 1\nb 1\nc 1\nd -2\n");
    Write("ana.par", "a b 1\na c 1\na d 1\nb a 1\nd a 1\n");
    (void)Load();
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
    (void)Load();
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
    Write("ana.pal", "a 1\nb\n");
    Write("ana.par", "a b 1\n");
    (void)Load();
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.pal"), "a 1\nb\n");
    dictionary.AddUserWordPair("a", "b");
    dictionary.Clear();
    EXPECT_EQ(dictionary.WordCount(), 0);
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.par"), "a b 1\n");
}

TEST_F(DictionarySave, ASetFrequencyMovesTheTotal) {
    Write("ana.frs", "bom|dia. 4\nolá. 1\n"_w);
    (void)Load();
    EXPECT_TRUE(dictionary.SetUserSentenceFrequency(" Bom dia.", 9));
    EXPECT_EQ(dictionary.SentenceTotals().user, 10);
    dictionary.RemoveRarestUserSentences();
    EXPECT_EQ(dictionary.SentenceTotals().user, 9);
    EXPECT_TRUE(dictionary.SaveUserSentences());
    EXPECT_EQ(Read("ana.frs"), "bom|dia. 9\n");
}

} // namespace
} // namespace ondrilo
