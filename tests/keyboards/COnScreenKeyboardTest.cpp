#include "keyboards/COnScreenKeyboard.h"

#include "tests/support/FakeMeasures.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr COnScreenKeyIdentifier kFirst{0, 0, 0};

struct Recorder : KeyboardObserver {
    void KeyChanged(COnScreenKeyIdentifier key) override { changed.push_back(key); }
    void KeysReplaced() override { ++replaced; }
    void LayoutChanged() override { ++layouts; }

    KeyIdentifiers changed;
    int replaced = 0;
    int layouts = 0;
};

class OnScreenKeyboard : public testing::Test {
  protected:
    OnScreenKeyboard() {
        settings.backgroundColor = 255;
        settings.textColor = 7;
    }
    void Open(TextView bytes) { keyboard.Open(folder.Write("k.tec", bytes), settings); }
    [[nodiscard]] Text File() const { return folder.Read("k.tec"); }

    TemporaryFolder folder;
    KeyboardSettings settings;
    COnScreenKeyboard keyboard;
};

TEST_F(OnScreenKeyboard, DefaultColoursFollowTheProfileAndAreWrittenAsDefaults) {
    const Text file = "\nLINHA a\nGRUPO b\nTECLA TECLA_NORMAL a a a 1 -1 -1\n"
                      "TECLA TECLA_NORMAL b b b 1 -1 9\n";
    Open(file);
    EXPECT_EQ(keyboard.Key(kFirst).data.backgroundColor, 255);
    EXPECT_EQ(keyboard.Key(kFirst).LitBackground(), 7);
    EXPECT_EQ(keyboard.Key(kFirst).LitText(), 255);
    EXPECT_EQ(keyboard.Key({0, 0, 1}).LitBackground(), 9) << "a key's own colours swap too";
    EXPECT_EQ(keyboard.FlatKeys()[0].backgroundColor, kDefaultColor);
    settings.backgroundColor = 1;
    settings.textColor = 2;
    keyboard.ApplySettings(settings);
    EXPECT_EQ(keyboard.Key({0, 0, 1}).data.backgroundColor, 1);
    EXPECT_EQ(keyboard.Key({0, 0, 1}).data.textColor, 9);
    ASSERT_TRUE(keyboard.Save());
    EXPECT_EQ(File(), file);
    keyboard.SetTextColor({0, 0, 1}, kDefaultColor);
    EXPECT_EQ(keyboard.Key({0, 0, 1}).data.textColor, 2);
}

TEST_F(OnScreenKeyboard, EachSaveAddsTheCaptionAgainAndReadingTakesOne) {
    const Text line = "TECLA TECLA_IMAGEM p.bmp:A;;;porta porta p.bmp 1 -1 -1\n";
    Open("LINHA a\nGRUPO b\n" + line);
    ASSERT_TRUE(keyboard.Save());
    EXPECT_EQ(File(), "\nLINHA a\nGRUPO b\n" + line);
    ASSERT_TRUE(keyboard.Save());
    EXPECT_EQ(File(),
              "\nLINHA a\nGRUPO b\nTECLA TECLA_IMAGEM p.bmp:A;;;porta:A;;;porta porta p.bmp 1 -1 -1\n");
    keyboard.Open(keyboard.Path(), settings);
    EXPECT_EQ(keyboard.Key(kFirst).data.label, "p.bmp");
    EXPECT_EQ(keyboard.Key(kFirst).data.imageText, "A porta");
}

TEST_F(OnScreenKeyboard, AFileThatGoesTooFarFailsWithItsLineAndKeepsWhatWasRead) {
    Recorder recorder;
    const auto observation = keyboard.Observe(recorder);
    try {
        Open("LINHA a\nGRUPO b\nTECLA TECLA_VAZIA\nLINHA c\nTECLA TECLA_VAZIA\nLINHA d\n");
        FAIL() << "no failure";
    } catch (const std::invalid_argument& failure) {
        EXPECT_EQ(dynamic_cast<const KeyboardLoadFailure&>(failure).LineNumber(), 5);
    }
    EXPECT_THAT(keyboard.Lines(), SizeIs(2));
    EXPECT_FALSE(keyboard.IsModified()) << "a save that nobody asked for would cut the file";
    EXPECT_EQ(recorder.replaced, 1);
}

TEST_F(OnScreenKeyboard, AMissingOrClosedKeyboardIsEmptyAndNeverWritten) {
    Open("LINHA a\n");
    EXPECT_FALSE(keyboard.SaveAs(folder.Path() / "no" / "such" / "k.tec").problem.empty());
    keyboard.Open(folder.Path() / "falta.tec", settings);
    EXPECT_TRUE(keyboard.IsOpen());
    EXPECT_THAT(keyboard.Lines(), IsEmpty());
    ASSERT_TRUE(keyboard.SetOwnHeights(60, 0));
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "falta.tec"));

    Open("LINHA a\n");
    keyboard.Close();
    EXPECT_FALSE(keyboard.IsOpen());
    EXPECT_EQ(keyboard.Lines().size() + keyboard.FlatKeys().size(), 0U);
    ASSERT_TRUE(keyboard.Save());
    EXPECT_EQ(File(), "LINHA a\n");
}

TEST_F(OnScreenKeyboard, OwnHeightsComeBeforeTheProfilesAndAreSavedAtOnce) {
    settings.keyHeight = 50;
    settings.imageHeight = 70;
    Open("ALTURA_TECLAS 60\nALTURA_TECLAS_IMAGENS 0\n");
    EXPECT_EQ(keyboard.Settings().keyHeight, 60);
    EXPECT_EQ(keyboard.Settings().imageHeight, 70);
    ASSERT_TRUE(keyboard.SetOwnHeights(0, 80));
    EXPECT_EQ(keyboard.Settings().keyHeight, 50);
    EXPECT_EQ(keyboard.Settings().imageHeight, 80);
    EXPECT_EQ(File(), "ALTURA_TECLAS_IMAGENS 80\n");
}

TEST_F(OnScreenKeyboard, AddressesPastTheEndReadAsEmptyAndWriteNothing) {
    Open("LINHA a\nGRUPO b\nTECLA TECLA_NORMAL a a a\n");
    Recorder recorder;
    const auto observation = keyboard.Observe(recorder);
    for (const COnScreenKeyIdentifier beyond :
         {COnScreenKeyIdentifier{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {-1, 0, 0}, {0, 0, -1}}) {
        keyboard.SetLabel(beyond, "x");
        EXPECT_EQ(keyboard.Key(beyond).data.label, "");
        EXPECT_FALSE(keyboard.Key(beyond).IsActive());
        EXPECT_EQ(keyboard.PlaceOf(beyond), Rectangle{});
    }
    EXPECT_THAT(recorder.changed, IsEmpty());
}

TEST_F(OnScreenKeyboard, KeysAreFoundInReadingOrderAndLitTogether) {
    Open("LINHA a\nGRUPO b\nTECLA TECLA_NORMAL a a Shift\nGRUPO c\nTECLA TECLA_PREDICAO\n"
         "TECLA TECLA_NORMAL a a shift\nLINHA d\nGRUPO e\nTECLA TECLA_PREDICAO\nTECLA TECLA_NORMAL a a "
         "Shift\n");
    EXPECT_THAT(keyboard.KeysOfType(KeyType::WordPrediction),
                ElementsAre(COnScreenKeyIdentifier{0, 1, 0}, COnScreenKeyIdentifier{1, 0, 0}));

    Recorder recorder;
    const auto observation = keyboard.Observe(recorder);
    keyboard.LightByOutput("Shift", true);
    EXPECT_THAT(recorder.changed, ElementsAre(kFirst, COnScreenKeyIdentifier{1, 0, 1}));
    EXPECT_TRUE(keyboard.Key(kFirst).IsLit());
    EXPECT_FALSE(keyboard.Key({0, 1, 1}).IsLit());
    keyboard.SetHovered(kFirst, true);
    keyboard.LightByOutput("Shift", false);
    EXPECT_TRUE(keyboard.Key(kFirst).IsLit()) << "the pointer still rests on it";
}

TEST_F(OnScreenKeyboard, WhatTheSessionWritesOnKeysIsNoChangeOfTheKeyboard) {
    Open("LINHA a\nGRUPO b\nTECLA TECLA_PREDICAO\n");
    keyboard.SetLabel(kFirst, "F1: casa");
    keyboard.SetOutput(kFirst, "casa");
    keyboard.SetLastPageMark({kFirst}, true);
    EXPECT_FALSE(keyboard.IsModified());
    EXPECT_EQ(keyboard.Key(kFirst).data.output, "casa");
    ASSERT_TRUE(keyboard.Save());
    EXPECT_EQ(File(), "\nLINHA a\nGRUPO b\nTECLA TECLA_PREDICAO\n");
}

TEST_F(OnScreenKeyboard, AKeysPlaceIsThatInsideTheWholeKeyboard) {
    settings.lineGap = 3;
    settings.groupGap = 5;
    Open("LINHA a\nGRUPO b\nTECLA TECLA_NORMAL a a a\nLINHA c\nGRUPO d\nTECLA TECLA_NORMAL a a a\n"
         "GRUPO e\nTECLA TECLA_NORMAL a a a\nTECLA TECLA_NORMAL a a a\n");
    Recorder recorder;
    const auto observation = keyboard.Observe(recorder);
    keyboard.LayOut(FakeTextMeasure{}, FakePictureMeasure{});
    EXPECT_EQ(keyboard.PlaceOf({1, 1, 1}), (Rectangle{28 + 5 + 28, 3 + 50 + 3, 28, 50}));
    EXPECT_EQ(recorder.layouts, 1);
}

TEST_F(OnScreenKeyboard, ColumnsAndSingleLinesAreToldApart) {
    Open("LINHA a\nGRUPO b\nTECLA TECLA_VAZIA\nLINHA c\nLINHA d\nGRUPO e\n");
    EXPECT_TRUE(keyboard.IsSingleColumn() && !keyboard.HasOneLine());
    Open("LINHA a\nGRUPO b\nTECLA TECLA_VAZIA\nTECLA TECLA_VAZIA\n");
    EXPECT_TRUE(!keyboard.IsSingleColumn() && keyboard.HasOneLine());
}

TEST_F(OnScreenKeyboard, AnObserverMayOutliveTheKeyboardAndADroppedOneHearsNothing) {
    Recorder recorder;
    auto temporary = std::make_unique<COnScreenKeyboard>();
    auto outliving = temporary->Observe(recorder);
    temporary.reset();
    outliving.reset();

    auto observation = keyboard.Observe(recorder);
    observation.reset();
    Open("LINHA a\n");
    EXPECT_EQ(recorder.replaced, 0);
}

TEST(KeyboardSettings, HeightsAndGapsAreNotMixedUp) {
    CUserProfileProperties profile;
    profile.Set(option::ALTURA_TECLAS, 61);
    profile.Set(option::ALTURA_TECLAS_IMAGENS, 62);
    profile.Set(option::ESPACO_ENTRE_LINHAS, 1);
    profile.Set(option::ESPACO_ENTRE_GRUPOS, 2);
    profile.Set(option::ESPACO_ENTRE_TECLAS, 3);
    const auto settings = MakeKeyboardSettings(profile, {});
    EXPECT_EQ(settings.keyHeight * 100 + settings.imageHeight, 6162);
    EXPECT_EQ(settings.lineGap * 100 + settings.groupGap * 10 + settings.keyGap, 123);
}

} // namespace
} // namespace ondrilo
