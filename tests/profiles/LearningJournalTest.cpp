#include "profiles/store/CUserProfileSet.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = Lesson::Kind;

const Lessons kFirst{{Kind::Word, "casa"}, {Kind::Word, "___"}, {Kind::WordPair, "___", "casa"}};
constexpr TextView kWater = "água"_w;
const Lessons kSecond{{Kind::Word, Text(kWater)}, {Kind::WordPair, "casa", Text(kWater)}};
constexpr TextView kOddSentence = "Casa\tcom\nágua."_w;
const Lessons kSentence{{Kind::Sentence, Text(kOddSentence)}};

/// A person whose program may crash: what a run leaves behind is seen by the next.
class LearningJournalTest : public testing::Test {
  protected:
    LearningJournalTest() {
        for (const auto* name : {"geral.pal", "geral.par", "geral.frs", "geral.paf"})
            folder.Write(name, "");
        for (const auto* extension : {".pal", ".par", ".abr", ".frs", ".paf"})
            for (const auto* name : {"ana", "generico"})
                folder.Write(Text(name) + extension, "");
        folder.Write("ana.pal", "antes 3\n");
        folder.Write("utils", "ana\n");
        Start();
    }

    void Start() {
        run = std::make_unique<CUserProfileSet>(DataFolder(folder.Path()), boxes, dialogs,
                                                [this](TextView sentence) { told.emplace_back(sentence); });
        run->Load();
        run->Open("ana");
    }
    void CrashAndStart() {
        run.reset();
        Start();
    }
    void End() {
        run->Release();
        run->Close();
    }
    CDictionary& Dictionary() { return run->Active().dictionary; }
    [[nodiscard]] int Times(TextView word) {
        const auto entry = Dictionary().GetWord(word);
        return entry ? entry.UserFrequency() : 0;
    }
    [[nodiscard]] bool HasJournal() const { return std::filesystem::exists(folder.Path() / "ana.jrn"); }

    TemporaryFolder folder;
    FakeMessageBoxes boxes;
    FakeDialogs dialogs;
    std::vector<Text> told;
    std::unique_ptr<CUserProfileSet> run;
};

TEST_F(LearningJournalTest, CrashesCostNothingAndTheNormalEndCountsEachWordOnce) {
    run->Learn(kFirst);
    run->Learn(kSecond);
    EXPECT_EQ(folder.Read("ana.pal"), "antes 3\n") << "the told files are written when told";
    CrashAndStart();
    EXPECT_EQ(Times("casa"), 1);
    run->Learn(kSecond);
    run->Learn(kSentence);
    CrashAndStart();
    End();
    EXPECT_EQ(folder.Read("ana.pal"), "___ 1\nantes 3\ncasa 1\nágua 2\n"_w);
    EXPECT_EQ(folder.Read("ana.par"), "___ casa 1\ncasa água 2\n"_w);
    EXPECT_EQ(folder.Read("ana.frs"), "casa|com|água. 1\n"_w);
    EXPECT_FALSE(HasJournal());
    Start();
    EXPECT_EQ(Times("casa"), 1);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LearningJournalTest, ALineThatACrashCutOffIsForgottenAndSpoilsNoLaterOne) {
    run->Learn(kFirst);
    const Text whole = folder.Read("ana.jrn");
    run->Learn(kSecond);
    const Text longer = folder.Read("ana.jrn");
    for (std::size_t size = whole.size(); size < longer.size(); ++size) {
        run.reset();
        folder.Write("ana.jrn", longer.substr(0, size));
        Start();
        EXPECT_EQ(Times("casa"), 1) << size;
        EXPECT_EQ(Times("água"_w), 0) << size;
        run->Learn(Lessons{{Kind::Word, "depois"}});
        CrashAndStart();
        EXPECT_EQ(Times("casa") + Times("depois"), 2) << size;
    }
}

TEST_F(LearningJournalTest, OddLinesTeachNothing) {
    run->Learn(kFirst);
    const Text lines = folder.Read("ana.jrn");
    const Text versions = lines.substr(0, lines.rfind('\n', lines.size() - 2) + 1);
    for (const TextView odd : {"", "p", "P\ta", "p\ta\tP\ta", "x\ta", "p\ta\t", "=\tp\t-1\t", "\xFF\r"}) {
        run.reset();
        folder.Write("ana.jrn", versions + Text(odd) + "\n");
        Start();
        EXPECT_EQ(Dictionary().WordCount() + Dictionary().SentenceCount(), 1) << odd;
        EXPECT_FALSE(HasJournal()) << odd;
    }
}

TEST_F(LearningJournalTest, ACrashInTheMiddleOfTheSaveNeitherLosesNorDoubles) {
    run->Learn(kFirst);
    run->Learn(kSecond);
    EXPECT_TRUE(Dictionary().SaveUserWords());
    run->Learn(Lessons{{Kind::Word, "depois"}});
    CrashAndStart();
    EXPECT_EQ(Times("casa"), 1);
    EXPECT_EQ(Times("depois"), 1);
    EXPECT_EQ(Dictionary().GetWord("casa").MaxUserNextFrequency(), 1) << "pairs were not saved yet";
}

TEST_F(LearningJournalTest, AFullDiskStopsNobodyAndIsToldOnceAFile) {
    run->Learn(kFirst);
    {
        const FullDisk disk(20);
        run->Learn(kSecond);
        run->Learn(kSecond);
        EXPECT_THAT(told, ElementsAre("Não foi possível guardar o ficheiro ana.jrn"_w));
        EXPECT_EQ(Times("água"_w), 2);
    }
    run->Learn(kSecond);
    CrashAndStart();
    EXPECT_EQ(Times("casa"), 1);
    EXPECT_EQ(Times("água"_w), 1) << "with room again, learning goes on";

    told.clear();
    {
        const FullDisk disk(2);
        run->Open("generico");
        EXPECT_FALSE(told.empty());
    }
    EXPECT_EQ(folder.Read("ana.pal"), "antes 3\n");
    EXPECT_TRUE(HasJournal());
    run->Open("ana");
    EXPECT_EQ(Times("água"_w), 1) << "what could not be saved is not lost";
}

TEST_F(LearningJournalTest, AProfileKeptInMemoryIsCoveredToo) {
    End();
    folder.Write("ana.cfg", "MANTER_DICIONARIO_MEMORIA 1\n");
    Start();
    run->Learn(kFirst);
    run->Open("generico");
    CrashAndStart();
    EXPECT_EQ(Times("casa"), 1);
    run->Open("ana");
    EXPECT_EQ(Times("casa"), 1);
    End();
    EXPECT_FALSE(HasJournal());
    EXPECT_THAT(folder.Read("ana.pal"), testing::HasSubstr("casa 1\n"));
}

TEST_F(LearningJournalTest, ANewProfileInheritsNothing) {
    run->Learn(kFirst);
    run.reset();
    folder.Write("utils", "");
    CUserProfileSet next(DataFolder(folder.Path()), boxes, dialogs);
    next.Load();
    next.Open("generico");
    next.CreateProfile("ana");
    EXPECT_EQ(next.Active().dictionary.WordCount(), 0);
    EXPECT_FALSE(HasJournal());
}

} // namespace
} // namespace ondrilo
