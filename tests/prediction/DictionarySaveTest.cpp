#include "tests/prediction/DictionaryFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>

namespace ondrilo {
namespace {

class DictionarySave : public DictionaryFolder {};

/// A disk with room for `bytes` more in any file.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        (void)std::signal(SIGXFSZ, SIG_IGN);
        (void)::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
        (void)::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() { (void)::setrlimit(RLIMIT_FSIZE, &before); }

  private:
    rlimit before{};
};

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

TEST_F(DictionarySave, UnchangedFilesAreLeftAlone) {
    Write("ana.pal", "a 1\nb\n");
    (void)Load();
    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.pal"), "a 1\nb\n");
}

TEST_F(DictionarySave, AFullDiskKeepsTheOldFileAndTheChanges) {
    Write("ana.pal", "a 1\n");
    Write("ana.abr", "bd bom dia\n");
    (void)Load();
    dictionary.AddUserWord("b");
    dictionary.abbreviations.Set("obg", "obrigado");
    {
        const FullDisk disk(3);
        EXPECT_FALSE(dictionary.SaveUserFiles().problem.empty());
        EXPECT_FALSE(dictionary.abbreviations.Save());
    }
    EXPECT_EQ(Read("ana.pal"), "a 1\n");
    EXPECT_EQ(Read("ana.abr"), "bd bom dia\n");
    EXPECT_TRUE(dictionary.UserWordsChanged());
    EXPECT_TRUE(dictionary.abbreviations.Changed());

    EXPECT_TRUE(dictionary.SaveUserFiles());
    EXPECT_EQ(Read("ana.pal"), "a 1\nb 1\n");
    EXPECT_TRUE(dictionary.abbreviations.Save());
}

TEST_F(DictionarySave, AClearedDictionaryEmptiesNoFile) {
    Write("ana.pal", "a 1\nb 1\n");
    Write("ana.par", "a b 1\n");
    (void)Load();
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
