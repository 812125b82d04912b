#include "tests/prediction/DictionaryFolder.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;

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
    static bool Share(const CDictionary& one, const CDictionary& other) {
        return one.Words().General() == other.Words().General();
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
    EXPECT_FALSE(Share(ana, rui));
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
    Write("ana.par", "");
    (void)ana.LoadGeneralWords(folder.Path() / "geral.pal");
    (void)ana.LoadUserWords(folder.Path() / "ana.pal");
    Write("geral.par", "a ab 2\na b 5\n");
    (void)ana.LoadGeneralWordPairs(folder.Path() / "geral.par");
    EXPECT_EQ(ana.GetWord("a").NextCount(), 2);
    EXPECT_EQ(ana.WordTotals().generalPairs, 7);
}

} // namespace
} // namespace ondrilo
