#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

constexpr COnScreenKeyIdentifier kWordKey{0, 0, 0};
constexpr COnScreenKeyIdentifier kOtherWordKey{0, 0, 1};
constexpr COnScreenKeyIdentifier kSentenceKey{0, 0, 2};

struct Stages {
    TextView options;
    Text texts;      ///< for each press of a key that writes text: h heard, s shown, b both, d done
    Text pictograms; ///< the same for pictograms, which are never shown
};

/// What a person hears, sees and reads after each press of the same key, with predictions in capitals and
/// without.
class StageTest : public RunningSystem, public testing::WithParamInterface<std::tuple<Stages, TextView>> {
  protected:
    StageTest() {
        // Everything is followed by itself, so that a key offers the same again.
        folder.Write("geral.par", "___ olá 5\nolá olá 5\n"_w);
        folder.Write("geral.frs", "___ 1\nbom|dia. 3\n");
        folder.Write("geral.paf", "___ bom|dia. 3\nbom|dia. bom|dia. 3\n");
    }
    void StartStages() { StartWriting(Text(stages.options).append(std::get<1>(GetParam()))); }

    char Observe(const std::function<void()>& press) {
        services.speech.spoken.clear();
        windows.texts.clear();
        const auto before = std::pair(Written(), services.pictograms.inserted.size());
        press();
        const bool heard = !services.speech.spoken.empty();
        const bool shown = !windows.texts.empty();
        if (std::pair(Written(), services.pictograms.inserted.size()) != before)
            return heard || shown ? '?' : 'd';
        return heard ? (shown ? 'b' : 'h') : (shown ? 's' : '-');
    }
    Text ObserveFour(const std::function<void()>& press) {
        Text presses;
        for (int i = 0; i < 4; ++i)
            presses += Observe(press);
        return presses;
    }
    const Stages& stages = std::get<0>(GetParam());
};

TEST_P(StageTest, TextsGoThroughTheirStagesByMouseSwitchAndHotKey) {
    StartStages();
    for (const auto& key : {kWordKey, kSentenceKey}) {
        EXPECT_EQ(ObserveFour([&] { Click(key); }), stages.texts);
        EXPECT_EQ(ObserveFour([&] { SelectByScanning(key); }), stages.texts);
        EXPECT_EQ(ObserveFour([&] { Press(vk::F1 + Key(key).data.label[1] - '1'); }), stages.texts);
        Click("[Limpar-Area-Trabalho]");
        Pause();
    }
    EXPECT_EQ(ObserveFour([this] { Click("o"); }), stages.texts);
    EXPECT_EQ(ObserveFour([this] { SelectByScanning(KeyOf("l")); }), stages.texts);
}

TEST_P(StageTest, PictogramsAreHeardButNeverShown) {
    folder.Write("Casa.tec",
                 "LINHA L\nGRUPO G\nTECLA TECLA_PREDICAO_IMAGEM\nTECLA TECLA_PREDICAO_FRASE_IMAGENS\n"
                 "TECLA TECLA_IMAGEM G\\gato.bmp gato G\\gato.bmp\n"
                 "LINHA M\nGRUPO G\nTECLA TECLA_NORMAL Mais mais imagens.tec\n");
    folder.Write("imagens.tec", "LINHA L\nGRUPO G\nTECLA TECLA_IMAGEM G\\quero.bmp quero G\\quero.bmp\n"
                                "TECLA TECLA_IMAGEM G\\sumo.bmp sumo G\\sumo.bmp\n");
    folder.Write("geral.pal", "[quero] 1\n[sumo] 1\n___ 1\n");
    folder.Write("geral.par", "___ [quero] 9\n");
    folder.Write("geral.frs", "[quero]|[sumo] 1\n___ 1\n");
    folder.Write("geral.paf", "___ [quero]|[sumo] 3\n");
    StartStages();
    for (const auto& key : KeyIdentifiers{{0, 0, 2}, {0, 0, 0}, {0, 0, 1}}) {
        EXPECT_EQ(ObserveFour([this, key] { Click(key); }), stages.pictograms);
        EXPECT_EQ(ObserveFour([this, key] { SelectByScanning(key); }), stages.pictograms);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Options, StageTest,
    testing::Combine(
        testing::Values(Stages{"", "dddd", "dddd"}, Stages{"OUVIR_ANTES_COMPLETAR 1\n", "hdhd", "hdhd"},
                        Stages{"VER_ANTES_COMPLETAR 1\n", "sdsd", "dddd"},
                        Stages{"OUVIR_ANTES_COMPLETAR 1\nVER_ANTES_COMPLETAR 1\n", "bdbd", "hdhd"}),
        testing::Values("", "PALAVRAS_PREDITAS_EM_MAIUSCULAS 1\n")));

TEST_F(RunningSystem, AKeyThatWasOnlyHeardAwaitsItsConfirmationAndNoOtherKey) {
    StartWriting("OUVIR_ANTES_COMPLETAR 1\n");
    for (const auto& key : {kWordKey, kOtherWordKey, kWordKey})
        Click(key);
    EXPECT_EQ(services.speech.spoken, Texts("olá"_w, "tudo", "olá"_w));
    EXPECT_EQ(Written(), "");
    Click("o");
    EXPECT_EQ(view->Keyboard().HalfSelected(), KeyOf("o"));
    Click("[Limpar-Area-Trabalho]");
    EXPECT_EQ(view->Keyboard().HalfSelected(), std::nullopt) << "a command is done at once";
    Click("o");
    EXPECT_EQ(view->Keyboard().HalfSelected(), std::nullopt) << "the key was heard before: now it is done";
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
    EXPECT_EQ(Labels(0)[1], "F2: TUDO");
    Click(kOtherWordKey);
    Click("l");
    EXPECT_EQ(services.speech.spoken, Texts("TUDO", "letra éle"_w));
    EXPECT_EQ(Written(), "tudo l") << "capitals on the keys do not reach the text";
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
