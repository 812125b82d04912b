#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

constexpr COnScreenKeyIdentifier kWordKey{0, 0, 0};
constexpr COnScreenKeyIdentifier kOtherWordKey{0, 0, 1};
constexpr COnScreenKeyIdentifier kSentenceKey{0, 0, 2};

struct Stages {
    TextView options;
    TextView presses; ///< for each press of one key: h heard, s shown, d done; "hs" counts as "b"
};

/// What a person hears, sees and reads after each press of the same key.
class StageTest : public RunningSystem, public testing::WithParamInterface<Stages> {
  protected:
    char Observe(const std::function<void()>& press) {
        services.speech.spoken.clear();
        windows.texts.clear();
        const auto before = Written();
        press();
        const bool heard = !services.speech.spoken.empty();
        const bool shown = !windows.texts.empty();
        if (Written() != before)
            return heard || shown ? '?' : 'd';
        return heard ? (shown ? 'b' : 'h') : (shown ? 's' : '-');
    }
    Text ObserveThree(const std::function<void()>& press) {
        Text presses;
        for (int i = 0; i < 3; ++i)
            presses += Observe(press);
        return presses;
    }
};

TEST_P(StageTest, ATextKeyGoesThroughItsStages) {
    StartWriting(GetParam().options);
    EXPECT_EQ(ObserveThree([this] { Click("o"); }), GetParam().presses);
}

TEST_P(StageTest, AWordKeyGoesThroughItsStages) {
    // Everything is followed by itself, so that the key offers the same word again.
    folder.Write("geral.par", "___ olá 5\nolá olá 5\n"_w);
    StartWriting(GetParam().options);
    EXPECT_EQ(ObserveThree([this] { Click(kWordKey); }), GetParam().presses);
}

TEST_P(StageTest, ASentenceKeyGoesThroughItsStages) {
    folder.Write("geral.frs", "___ 1\nbom|dia. 3\n");
    folder.Write("geral.paf", "___ bom|dia. 3\nbom|dia. bom|dia. 3\n");
    StartWriting(GetParam().options);
    const auto presses = ObserveThree([this] { Click(kSentenceKey); });
    EXPECT_EQ(presses.substr(0, 2), GetParam().presses.substr(0, 2));
}

TEST_P(StageTest, AHotKeyGoesThroughItsStages) {
    folder.Write("geral.par", "___ olá 5\nolá olá 5\n"_w);
    StartWriting(GetParam().options);
    EXPECT_EQ(ObserveThree([this] { Press(vk::F1); }), GetParam().presses);
}

INSTANTIATE_TEST_SUITE_P(Options, StageTest,
                         testing::Values(Stages{"", "ddd"}, Stages{"OUVIR_ANTES_COMPLETAR 1\n", "hdh"},
                                         Stages{"VER_ANTES_COMPLETAR 1\n", "sds"},
                                         Stages{"OUVIR_ANTES_COMPLETAR 1\nVER_ANTES_COMPLETAR 1\n", "bdb"}));

TEST_F(RunningSystem, AnotherKeyBetweenTwoPressesOfAKeyStartsItsStagesAnew) {
    StartWriting("OUVIR_ANTES_COMPLETAR 1\n");
    Click(kWordKey);
    Click(kOtherWordKey);
    Click(kWordKey);
    EXPECT_EQ(services.speech.spoken, Texts("olá"_w, "tudo", "olá"_w));
    EXPECT_EQ(Written(), "");
}

TEST_F(RunningSystem, AHalfDoneHotKeyWaitsOnlyForTheVeryNextKey) {
    StartWriting("OUVIR_ANTES_COMPLETAR 1\n");
    Press(vk::F1);
    Press(vk::Left);
    Press(vk::F1);
    EXPECT_EQ(services.speech.spoken, Texts("olá"_w, "olá"_w));
    Press(vk::F1);
    EXPECT_EQ(Written(), "olá "_w);
}

TEST_F(RunningSystem, APreviewShowsWhatTheTextWillReadAtTheCaret) {
    StartWriting("VER_ANTES_COMPLETAR 1\n");
    Type("Tu");
    Pause();
    windows.editor->caret = {300, 200};
    Click(kWordKey);
    EXPECT_EQ(windows.preview.text, "Tudo");
    EXPECT_EQ(windows.preview.lowerLeft, (Point{300, 200}));
    windows.editor->caret = {};
    Click("Enter");
    EXPECT_EQ(windows.preview.text, "Tudo") << "Enter has nothing to show";
    EXPECT_EQ(services.speech.spoken, Texts("fim de linha")) << "so it is heard";
    Click("o");
    EXPECT_EQ(windows.preview.lowerLeft, (Point{0, 20})) << "the corner of the screen, without a caret";
}

TEST_F(RunningSystem, AfterTheSelectionItIsHeardIfWanted) {
    StartWriting("OUVIR_DEPOIS_COMPLETAR 1\nPALAVRAS_PREDITAS_EM_MAIUSCULAS 1\n");
    Click(kOtherWordKey);
    Click("l");
    EXPECT_EQ(services.speech.spoken, Texts("TUDO", "letra éle"_w));
    EXPECT_EQ(Written(), "tudo l");
}

TEST_F(RunningSystem, ASelectionIsLoggedWithItsPlace) {
    StartWriting("REGISTAR_EVENTOS 1\nOUVIR_ANTES_COMPLETAR 1\n");
    services.log.written.clear();
    Click(kOtherWordKey);
    Click(kOtherWordKey);
    ASSERT_GE(services.log.written.size(), 2U);
    EXPECT_EQ(services.log.written[0],
              (LogEvent{"", "LEFT_MOUSE_DOWN_KEY",
                        "SYNTHESIZE_PREDICTED_WORD_FROM_LIST_BEFORE_COMPLETATION_0_1_tudo", kOtherWordKey}));
    EXPECT_EQ(services.log.written[1],
              (LogEvent{"", "LEFT_MOUSE_DOWN_KEY", "PREDICTED_WORD_SELECTION_0_1_tudo", kOtherWordKey}));
}

TEST_F(RunningSystem, APartnersSuggestionsGoAfterASelection) {
    StartWriting();
    services.cooperation.up = true;
    Click("o");
    EXPECT_EQ(Labels(0)[0], "F1: olá"_w) << "text keys leave them";
    Press(vk::Backspace);
    Click(kWordKey);
    EXPECT_EQ(Labels(0), Texts("", "", "", ""));
    Pause();
    EXPECT_EQ(Labels(0), Texts("", "", "", "")) << "no cycle runs meanwhile";
}

} // namespace
} // namespace ondrilo
