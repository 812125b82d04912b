#include "profiles/store/CUserProfileSet.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A data folder with general dictionaries and the profiles "generico", "ana" and "rui".
class ProfileSet : public testing::Test {
  protected:
    ProfileSet() {
        for (const auto* name : {"geral.pal", "geral.par", "geral.frs", "geral.paf"})
            folder.Write(name, "");
        folder.Write("geral.pal", "casa 5\ngato 3\n");
        folder.Write("utils", "ana\nrui\n");
        for (const auto* name : {"generico", "ana", "rui"})
            AddVocabulary(name);
    }

    void AddVocabulary(const std::string& name) {
        for (const auto* extension : {".pal", ".par", ".abr", ".frs", ".paf"})
            folder.Write(name + extension, "");
    }

    bool Exists(const std::string& name) { return std::filesystem::exists(folder.Path() / name); }

    TemporaryFolder folder;
    FakeMessageBoxes boxes;
    FakeDialogs dialogs;
    std::vector<Text> told;
    CUserProfileSet profiles{DataFolder(folder.Path()), boxes, dialogs, [this](TextView sentence) {
                                 told.emplace_back(sentence);
                             }};
};

TEST_F(ProfileSet, WithoutAListThereIsTheGenericProfileWhichAlsoStandsForUnknownOnes) {
    std::filesystem::remove(folder.Path() / "utils");
    profiles.Load();
    EXPECT_EQ(profiles.Count(), 1);
    EXPECT_THROW((void)profiles.Active(), std::invalid_argument);
    EXPECT_THROW((void)profiles.At(1), std::invalid_argument);
    EXPECT_EQ(profiles.Open("eva"), 0);
    EXPECT_THAT(boxes.shown,
                ElementsAre("O perfil de utilizador eva não está disponível! Será carregado o perfil "
                            "de utilizador genérico."_w));
    EXPECT_EQ(profiles.Active().properties.profileName, "generico");
}

TEST_F(ProfileSet, ReadsTheListWordByWordAndTellsCaseApart) {
    folder.Write("utils", "ana  rui\r\n\nAna");
    profiles.Load();
    EXPECT_THAT(profiles.GetProfileNames(), ElementsAre("generico", "ana", "rui", "Ana"));
    EXPECT_EQ(profiles.FindProfile("Ana"), 3);
    EXPECT_EQ(profiles.FindProfile("ANA"), -1);
    EXPECT_TRUE(profiles.ProfileExists("rui"));
    EXPECT_FALSE(profiles.ProfileExists("generico"));
}

TEST_F(ProfileSet, LeavingAProfileOrTheProgramWritesItsOptionsAndWhatItLearned) {
    profiles.Load();
    profiles.Open("ana");
    profiles.Active().dictionary.AddUserWord("gato", 2);
    profiles.Active().dictionary.abbreviations.Set("bd", "bom dia");
    profiles.Open("rui");
    EXPECT_EQ(folder.Read("ana.pal"), "gato 2\n");
    EXPECT_EQ(folder.Read("ana.abr"), "bd bom dia\n");
    EXPECT_TRUE(Exists("ana.cfg"));
    EXPECT_FALSE(Exists("rui.cfg"));
    EXPECT_EQ(profiles.At(1).dictionary.WordCount(), 0);
    folder.Write("rui.pal", "gato 7\nlido 1\n");
    profiles.Open("rui");
    EXPECT_EQ(profiles.Active().dictionary.WordCount(), 3) << "opened again, it is read again";
    profiles.Active().dictionary.AddUserWord("novo");
    profiles.Active().Set(option::ALTURA_TECLAS, 77);
    profiles.Release();
    profiles.Close();
    EXPECT_EQ(folder.Read("rui.pal"), "gato 7\nlido 1\nnovo 1\n");
    EXPECT_NE(folder.Read("rui.cfg").find("ALTURA_TECLAS 77\n"), Text::npos);
    EXPECT_EQ(profiles.ActiveIndex(), -1);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(ProfileSet, ADictionaryKeptInMemoryIsReadOnceAndSavedAtTheEnd) {
    folder.Write("ana.cfg", "MANTER_DICIONARIO_MEMORIA 1\n");
    profiles.Load();
    EXPECT_EQ(profiles.At(1).dictionary.WordCount(), 2);
    profiles.Open("ana");
    profiles.Active().dictionary.AddUserWord("novo");
    profiles.Open("rui");
    profiles.Open("ana");
    EXPECT_EQ(profiles.Active().dictionary.WordCount(), 3);
    EXPECT_EQ(folder.Read("ana.pal"), "");
    profiles.Release();
    profiles.Close();
    EXPECT_EQ(folder.Read("ana.pal"), "novo 1\n");
    EXPECT_EQ(profiles.Count(), 0);
}

TEST_F(ProfileSet, ANewProfileStartsFromTheBaseOptionsWithEmptyDictionaries) {
    folder.Write("utils", "ana");
    folder.Write("base.cfg", "ALTURA_TECLAS 91\n# nota\n");
    folder.Write("eva.pal", "antigo 4\n");
    folder.Write("eva.acs", "TEMPO_PERMANENCIA 900\n");
    profiles.Load();
    profiles.Open("ana");
    profiles.CreateProfile("eva");
    EXPECT_EQ(folder.Read("utils"), "ana\neva\n");
    EXPECT_EQ(folder.Read("eva.cfg"), "ALTURA_TECLAS 91\n# nota\n");
    EXPECT_EQ(folder.Read("eva.pal"), "");
    EXPECT_EQ(profiles.Active().properties.profileName, "eva");
    EXPECT_EQ(profiles.Active().properties.Get(option::ALTURA_TECLAS), 91);
    EXPECT_EQ(profiles.Active().access.DwellTime(), 0);
    EXPECT_FALSE(Exists("eva.acs"));
    EXPECT_EQ(profiles.Active().dictionary.WordCount(), 2);
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(ProfileSet, TheGenericProfileAndTheActiveOneStayAndOfAnotherTheNameIsForgottenButNotItsFiles) {
    profiles.Load();
    profiles.Open("rui");
    const auto remove = [this](std::optional<Text> name, std::deque<Answer> answers) {
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
    EXPECT_EQ(profiles.Active().properties.profileName, "rui");
}

TEST_F(ProfileSet, CopyingOptionsKeepsNameFileAndDictionary) {
    folder.Write("rui.cfg", "ALTURA_TECLAS 99\nNOME_TECLADO Frases\n");
    folder.Write("rui.acs", "TEMPO_PERMANENCIA 1200\n");
    profiles.Load();
    profiles.Open("ana");
    dialogs.chosenProfile = "rui";
    EXPECT_TRUE(profiles.CopyFromProfile());
    EXPECT_THAT(dialogs.offeredProfiles, ElementsAre("generico", "ana", "rui"));
    EXPECT_EQ(profiles.Active().properties.profileName, "ana");
    EXPECT_EQ(profiles.Active().dictionary.WordCount(), 2);
    profiles.SaveActive();
    EXPECT_NE(folder.Read("ana.cfg").find("ALTURA_TECLAS 99\n"), Text::npos);
    EXPECT_EQ(folder.Read("ana.acs"), "TEMPO_PERMANENCIA 1200\n");
    EXPECT_EQ(folder.Read("rui.cfg"), "ALTURA_TECLAS 99\nNOME_TECLADO Frases\n");
    dialogs.chosenProfile.reset();
    EXPECT_FALSE(profiles.CopyFromProfile());
}

TEST_F(ProfileSet, AccessOptionsAreReadIntoTheirRangeAndWrittenOnlyAfterAChange) {
    const Text byHand = "# nota\nOUTRA 1\nTEMPO_PERMANENCIA 1250\n";
    folder.Write("ana.acs", byHand);
    folder.Write("rui.acs", "TEMPO_PERMANENCIA 99999\n");
    profiles.Load();
    EXPECT_EQ(profiles.At(2).access.DwellTime(), 10'000);
    profiles.Open("ana");
    EXPECT_EQ(profiles.Active().access.DwellTime(), 1200);
    profiles.SaveActive();
    EXPECT_EQ(folder.Read("ana.acs"), byHand);

    profiles.Active().access.Set(access_option::TEMPO_PERMANENCIA, 800);
    std::filesystem::remove(folder.Path() / "ana.acs");
    std::filesystem::create_directory_symlink("/proc", folder.Path() / "ana.acs"); // nothing can replace it
    profiles.SaveActive();
    EXPECT_EQ(told.size(), 1U);
    std::filesystem::remove(folder.Path() / "ana.acs");
    profiles.SaveActive();
    EXPECT_EQ(folder.Read("ana.acs"), "TEMPO_PERMANENCIA 800\n") << "a save that failed is made up for";
}

TEST_F(ProfileSet, AFolderThatIsGoneIsToldOnceAndNotAtEverySave) {
    profiles.Load();
    profiles.Open("ana");
    profiles.Active().dictionary.AddUserWord("novo");
    std::filesystem::remove_all(folder.Path());
    profiles.SaveActive();
    profiles.SaveActive();
    EXPECT_EQ(told.size(), 1U);
}

TEST(ProfileFolder, NamesEveryOptionsFileAndTheKeyboardItOpensWith) {
    const TemporaryFolder temporary;
    temporary.Write("ana.cfg", "NOME_TECLADO Frases\n");
    temporary.Write("Bia.CFG", "");
    const DataFolder folder(temporary.Path());
    EXPECT_THAT(GetProfileNamesInFolder(folder), ElementsAre("ana", "Bia"));
    EXPECT_EQ(GetKeyboardFileOfProfile(folder, "ana"), "Frases.tec");
    EXPECT_EQ(GetKeyboardNameOfProfile(folder, "nobody"), "QwertySimples");
}

} // namespace
} // namespace ondrilo
