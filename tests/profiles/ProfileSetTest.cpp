#include "profiles/store/CUserProfileSet.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Kind = Lesson::Kind;

/// A data folder with general dictionaries and the profiles "generico", "ana" and "rui".
class ProfileSet : public testing::Test {
  protected:
    ProfileSet() {
        for (const Text name : {"geral", "generico", "ana", "rui"})
            for (const auto* extension : {".pal", ".par", ".abr", ".frs", ".paf"})
                folder.Write(name + extension, "");
        folder.Write("geral.pal", "casa 5\ngato 3\n");
        folder.Write("utils", "ana\nrui\n");
    }

    /// The program starts; what ran before has crashed.
    CUserProfileSet& Start() {
        run.reset();
        run.emplace(DataFolder(folder.Path()), boxes, dialogs,
                    [this](TextView sentence) { told.emplace_back(sentence); });
        run->Load();
        return *run;
    }
    CUserProfileSet& StartWith(TextView name) {
        Start().Open(name);
        return *run;
    }
    void End() {
        run->Release();
        run->Close();
    }
    CUserProfile& Active() { return run->Active(); }
    CDictionary& Dictionary() { return Active().dictionary; }
    [[nodiscard]] bool Exists(const std::string& name) const {
        return std::filesystem::exists(folder.Path() / name);
    }

    TemporaryFolder folder;
    FakeMessageBoxes boxes;
    FakeDialogs dialogs;
    std::vector<Text> told;
    std::optional<CUserProfileSet> run;
};

TEST_F(ProfileSet, WithoutAListThereIsTheGenericProfileWhichAlsoStandsForUnknownOnes) {
    std::filesystem::remove(folder.Path() / "utils");
    auto& profiles = Start();
    EXPECT_THROW((void)profiles.Active(), std::invalid_argument);
    EXPECT_THROW((void)profiles.At(1), std::invalid_argument);
    EXPECT_EQ(profiles.Open("eva"), 0);
    EXPECT_THAT(boxes.shown,
                ElementsAre("O perfil de utilizador eva não está disponível! Será carregado o perfil "
                            "de utilizador genérico."_w));
    EXPECT_EQ(Active().properties.profileName, "generico");
}

TEST_F(ProfileSet, ReadsTheListWordByWordAndTellsCaseApart) {
    folder.Write("utils", "ana  rui\r\n\nAna");
    const auto& profiles = Start();
    EXPECT_THAT(profiles.GetProfileNames(), ElementsAre("generico", "ana", "rui", "Ana"));
    EXPECT_EQ(profiles.FindProfile("Ana"), 3);
    EXPECT_EQ(profiles.FindProfile("ANA"), -1);
    EXPECT_TRUE(profiles.ProfileExists("rui"));
    EXPECT_FALSE(profiles.ProfileExists("generico"));
}

TEST_F(ProfileSet, LeavingAProfileOrTheProgramWritesItsOptionsAndWhatItLearned) {
    auto& profiles = StartWith("ana");
    Dictionary().AddUserWord("gato", 2);
    Dictionary().abbreviations.Set("bd", "bom dia");
    profiles.Open("rui");
    EXPECT_EQ(folder.Read("ana.pal"), "gato 2\n");
    EXPECT_EQ(folder.Read("ana.abr"), "bd bom dia\n");
    EXPECT_TRUE(Exists("ana.cfg"));
    EXPECT_FALSE(Exists("rui.cfg"));
    EXPECT_EQ(profiles.At(1).dictionary.WordCount(), 0);
    folder.Write("rui.pal", "gato 7\nlido 1\n");
    profiles.Open("rui");
    EXPECT_EQ(Dictionary().WordCount(), 3) << "opened again, it is read again";
    Dictionary().AddUserWord("novo");
    Active().Set(option::ALTURA_TECLAS, 77);
    End();
    EXPECT_EQ(folder.Read("rui.pal"), "gato 7\nlido 1\nnovo 1\n");
    EXPECT_THAT(folder.Read("rui.cfg"), HasSubstr("ALTURA_TECLAS 77\n"));
    EXPECT_EQ(profiles.ActiveIndex(), -1);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(ProfileSet, ADictionaryKeptInMemoryIsReadOnceAndSavedAtTheEnd) {
    folder.Write("ana.cfg", "MANTER_DICIONARIO_MEMORIA 1\n");
    auto& profiles = Start();
    EXPECT_EQ(profiles.At(1).dictionary.WordCount(), 2);
    profiles.Open("ana");
    Dictionary().AddUserWord("novo");
    profiles.Open("rui");
    profiles.Open("ana");
    EXPECT_EQ(Dictionary().WordCount(), 3);
    EXPECT_EQ(folder.Read("ana.pal"), "");
    End();
    EXPECT_EQ(folder.Read("ana.pal"), "novo 1\n");
    EXPECT_EQ(profiles.Count(), 0);
}

TEST_F(ProfileSet, ANewProfileStartsFromTheBaseOptionsAndInheritsNothingFromFilesOfItsName) {
    folder.Write("utils", "ana");
    folder.Write("base.cfg", "ALTURA_TECLAS 91\n# nota\n");
    folder.Write("eva.pal", "antigo 4\n");
    folder.Write("eva.acs", "TEMPO_PERMANENCIA 900\n");
    folder.Write("eva.jrn", "p\tantigo\n");
    StartWith("ana").CreateProfile("eva");
    EXPECT_EQ(folder.Read("utils"), "ana\neva\n");
    EXPECT_EQ(folder.Read("eva.cfg"), "ALTURA_TECLAS 91\n# nota\n");
    EXPECT_EQ(folder.Read("eva.pal"), "");
    EXPECT_EQ(Active().properties.profileName, "eva");
    EXPECT_EQ(Active().properties.Get(option::ALTURA_TECLAS), 91);
    EXPECT_EQ(Active().access.DwellTime(), 0);
    EXPECT_FALSE(Exists("eva.acs") || Exists("eva.jrn"));
    EXPECT_EQ(Dictionary().WordCount(), 2);

    std::filesystem::remove(folder.Path() / "base.cfg");
    run->CreateProfile("zoe");
    EXPECT_EQ(folder.Read("utils"), "ana\neva\nzoe\n");
    EXPECT_EQ(Active().properties.Get(option::ALTURA_TECLAS), 50);
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(ProfileSet, TheGenericProfileAndTheActiveOneStayAndOfAnotherTheNameIsForgottenButNotItsFiles) {
    auto& profiles = StartWith("rui");
    const auto remove = [&](std::optional<Text> name, std::deque<Answer> answers) {
        dialogs.chosenProfile = std::move(name);
        boxes.answers = std::move(answers);
        profiles.RemoveProfile();
    };
    remove("generico", {});
    remove("rui", {Answer::Yes});
    remove("ana", {Answer::No});
    remove(std::nullopt, {});
    EXPECT_THAT(
        boxes.shown,
        ElementsAre("Não é possível apagar o perfil de utilizador genérico."_w,
                    "Quer mesmo remover o perfil rui?",
                    "Este perfil de utilizador encontra-se activo e por isso não pode ser removido."_w,
                    "Quer mesmo remover o perfil ana?"));
    EXPECT_EQ(boxes.lastPreselected, Answer::No);
    EXPECT_EQ(folder.Read("utils"), "ana\nrui\n");
    remove("ana", {Answer::Yes});
    EXPECT_EQ(folder.Read("utils"), "rui\n");
    EXPECT_TRUE(Exists("ana.pal"));
    EXPECT_EQ(profiles.ActiveIndex(), 1);
    EXPECT_EQ(Active().properties.profileName, "rui");
}

TEST_F(ProfileSet, CopyingOptionsKeepsNameFileAndDictionary) {
    folder.Write("rui.cfg", "ALTURA_TECLAS 99\nNOME_TECLADO Frases\n");
    folder.Write("rui.acs", "TEMPO_PERMANENCIA 1200\n");
    auto& profiles = StartWith("ana");
    dialogs.chosenProfile = "rui";
    EXPECT_TRUE(profiles.CopyFromProfile());
    EXPECT_THAT(dialogs.offeredProfiles, ElementsAre("generico", "ana", "rui"));
    EXPECT_EQ(Active().properties.profileName, "ana");
    EXPECT_EQ(Dictionary().WordCount(), 2);
    profiles.SaveActive();
    EXPECT_THAT(folder.Read("ana.cfg"), HasSubstr("ALTURA_TECLAS 99\n"));
    EXPECT_EQ(folder.Read("ana.acs"), "TEMPO_PERMANENCIA 1200\n");
    EXPECT_EQ(folder.Read("rui.cfg"), "ALTURA_TECLAS 99\nNOME_TECLADO Frases\n");
    dialogs.chosenProfile.reset();
    EXPECT_FALSE(profiles.CopyFromProfile());
}

TEST_F(ProfileSet, AccessOptionsAreReadIntoTheirRangeAndWrittenOnlyAfterAChange) {
    const Text byHand = "# nota\nOUTRA 1\nTEMPO_PERMANENCIA 1250\n";
    folder.Write("ana.acs", byHand);
    folder.Write("rui.acs", "TEMPO_PERMANENCIA 99999\n");
    auto& profiles = StartWith("ana");
    EXPECT_EQ(profiles.At(2).access.DwellTime(), 10'000);
    EXPECT_EQ(Active().access.DwellTime(), 1200);
    profiles.SaveActive();
    EXPECT_EQ(folder.Read("ana.acs"), byHand);

    Active().access.Set(access_option::TEMPO_PERMANENCIA, 800);
    std::filesystem::remove(folder.Path() / "ana.acs");
    std::filesystem::create_directory_symlink("/proc", folder.Path() / "ana.acs"); // nothing can replace it
    profiles.SaveActive();
    EXPECT_EQ(told.size(), 1U);
    std::filesystem::remove(folder.Path() / "ana.acs");
    profiles.SaveActive();
    EXPECT_EQ(folder.Read("ana.acs"), "TEMPO_PERMANENCIA 800\n") << "a save that failed is made up for";
}

const Lessons kFirst{{Kind::Word, "casa"}, {Kind::Word, "___"}, {Kind::WordPair, "___", "casa"}};
constexpr TextView kWater = "água"_w;
const Lessons kSecond{{Kind::Word, Text(kWater)}, {Kind::WordPair, "casa", Text(kWater)}};
constexpr TextView kOddSentence = "Casa\tcom\nágua."_w;
const Lessons kSentence{{Kind::Sentence, Text(kOddSentence)}};

/// A person whose program may crash: what a run leaves behind is seen by the next.
class LearningJournalTest : public ProfileSet {
  protected:
    LearningJournalTest() {
        folder.Write("ana.pal", "antes 3\n");
        StartWith("ana");
    }

    void Learn(std::span<const Lesson> lessons) { run->Learn(lessons); }
    [[nodiscard]] int Times(TextView word) {
        const auto entry = Dictionary().GetWord(word);
        return entry ? entry.UserFrequency() : 0;
    }
    [[nodiscard]] bool HasJournal() const { return Exists("ana.jrn"); }
};

TEST_F(LearningJournalTest, CrashesCostNothingAndTheNormalEndCountsEachWordOnce) {
    Learn(kFirst);
    Learn(kSecond);
    EXPECT_EQ(folder.Read("ana.pal"), "antes 3\n") << "the told files are written when told";
    StartWith("ana");
    EXPECT_EQ(Times("casa"), 1);
    Learn(kSecond);
    Learn(kSentence);
    StartWith("ana");
    End();
    EXPECT_EQ(folder.Read("ana.pal"), "___ 1\nantes 3\ncasa 1\nágua 2\n"_w);
    EXPECT_EQ(folder.Read("ana.par"), "___ casa 1\ncasa água 2\n"_w);
    EXPECT_EQ(folder.Read("ana.frs"), "casa|com|água. 1\n"_w);
    EXPECT_FALSE(HasJournal());
    StartWith("ana");
    EXPECT_EQ(Times("casa"), 1);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LearningJournalTest, ALineThatACrashCutOffIsForgottenAndSpoilsNoLaterOne) {
    Learn(kFirst);
    const Text whole = folder.Read("ana.jrn");
    Learn(kSecond);
    const Text longer = folder.Read("ana.jrn");
    for (std::size_t size = whole.size(); size < longer.size(); ++size) {
        run.reset();
        folder.Write("ana.jrn", longer.substr(0, size));
        StartWith("ana");
        EXPECT_EQ(Times("casa"), 1) << size;
        EXPECT_EQ(Times(kWater), 0) << size;
        Learn(Lessons{{Kind::Word, "depois"}});
        StartWith("ana");
        EXPECT_EQ(Times("casa") + Times("depois"), 2) << size;
    }
}

TEST_F(LearningJournalTest, OddLinesTeachNothing) {
    Learn(kFirst);
    const Text lines = folder.Read("ana.jrn");
    const Text versions = lines.substr(0, lines.rfind('\n', lines.size() - 2) + 1);
    for (const TextView odd : {"", "p", "P\ta", "p\ta\tP\ta", "x\ta", "p\ta\t", "=\tp\t-1\t", "\xFF\r"}) {
        run.reset();
        folder.Write("ana.jrn", versions + Text(odd) + "\n");
        StartWith("ana");
        EXPECT_EQ(Dictionary().WordCount() + Dictionary().SentenceCount(), 3) << odd; // casa, gato, antes
        EXPECT_FALSE(HasJournal()) << odd;
    }
}

TEST_F(LearningJournalTest, ACrashInTheMiddleOfTheSaveNeitherLosesNorDoubles) {
    Learn(kFirst);
    Learn(kSecond);
    EXPECT_TRUE(Dictionary().SaveUserWords());
    Learn(Lessons{{Kind::Word, "depois"}});
    StartWith("ana");
    EXPECT_EQ(Times("casa"), 1);
    EXPECT_EQ(Times("depois"), 1);
    EXPECT_EQ(Dictionary().GetWord("casa").MaxUserNextFrequency(), 1) << "pairs were not saved yet";
}

TEST_F(LearningJournalTest, AFullDiskStopsNobodyAndIsToldOnceAFile) {
    Learn(kFirst);
    {
        const FullDisk disk(20);
        Learn(kSecond);
        Learn(kSecond);
        EXPECT_THAT(told, ElementsAre("Não foi possível guardar o ficheiro ana.jrn"_w));
        EXPECT_EQ(Times(kWater), 2);
    }
    Learn(kSecond);
    StartWith("ana");
    EXPECT_EQ(Times("casa"), 1);
    EXPECT_EQ(Times(kWater), 1) << "with room again, learning goes on";

    told.clear();
    {
        const FullDisk disk(2);
        run->Open("generico");
        EXPECT_FALSE(told.empty());
    }
    EXPECT_EQ(folder.Read("ana.pal"), "antes 3\n");
    EXPECT_TRUE(HasJournal());
    run->Open("ana");
    EXPECT_EQ(Times(kWater), 1) << "what could not be saved is not lost";
}

TEST_F(LearningJournalTest, AProfileKeptInMemoryIsCoveredToo) {
    folder.Write("ana.cfg", "MANTER_DICIONARIO_MEMORIA 1\n");
    StartWith("ana");
    Learn(kFirst);
    run->Open("generico");
    StartWith("ana");
    EXPECT_EQ(Times("casa"), 1);
    End();
    EXPECT_FALSE(HasJournal());
    EXPECT_THAT(folder.Read("ana.pal"), HasSubstr("casa 1\n"));
    EXPECT_THAT(told, IsEmpty());
}

} // namespace
} // namespace ondrilo
