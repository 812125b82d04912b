#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

constexpr int kSwitch1 = vk::Num0 + 5;
constexpr int kSwitch2 = vk::Num0 + 6;
constexpr TextView kRegular = "METODO_VARRIMENTO Regular\nTECLA_MANIPULO2 Num6\nVELOCIDADE_VARRIMENTO 500\n"
                              "LATENCIA_INTERRUPTORES_VARRIMENTO 100\nNUMERO_MAXIMO_CICLOS_VARRIMENTO 2\n";

/// A person with switches at the keyboard "Casa": line 0 holds predictions, line 1 letters, line 2 commands.
class ScanningSessionTest : public RunningSystem {
  protected:
    void StartScanning(TextView options = "") { StartWriting(Text(kRegular).append(options)); }
    /// A press that lasts as long as its latency asks for.
    void Switch(int code) {
        keys.KeyDown(code);
        Drain();
        Tick(2);
        keys.KeyUp(code);
        Drain();
    }
    /// Waits for so many steps of the highlight.
    void Wait(int steps) { Tick(6 * steps); }
    /// From the start, in "Regular".
    void ScanTo(COnScreenKeyIdentifier key) {
        Switch(kSwitch1);
        Wait(key.line);
        Switch(kSwitch1);
        Wait(key.key);
        Switch(kSwitch1);
    }
    [[nodiscard]] Text Lit() const {
        Text lit;
        for (const auto& key : view->Keyboard().AllKeys())
            if (Key(key).highlighted)
                lit += std::to_string(key.line) + "." + std::to_string(key.key) + " ";
        return lit;
    }
};

TEST_F(ScanningSessionTest, OneSwitchWritesPagesFollowsLinksAndRunsCommands) {
    StartScanning();
    ScanTo(KeyOf("l"));
    EXPECT_EQ(Written(), "l");
    EXPECT_EQ(Lit(), "");
    ScanTo(KeyOf("[Limpar-Area-Trabalho]"));
    EXPECT_EQ(Written(), "");
    const auto page = Labels(0);
    ScanTo({0, 0, 1});
    EXPECT_EQ(Written(), "tudo ") << "a prediction, chosen by its key";
    ScanTo(KeyOf("[Mostrar-Predições-Seguintes]"_w));
    EXPECT_NE(Labels(0), page);
    ScanTo(KeyOf("outro.tec"));
    EXPECT_EQ(Labels(0), Texts("x"));
    Switch(kSwitch1);
    EXPECT_EQ(Written(), "tudo x") << "the only key of a keyboard needs one press";
}

TEST_F(ScanningSessionTest, TheFirstSwitchStepsAndTheSecondSelectsInTheStepMethod) {
    StartScanning("METODO_VARRIMENTO Passo-a-Passo\n");
    for (const int code : {kSwitch1, kSwitch1, kSwitch2, kSwitch1, kSwitch2})
        Switch(code);
    EXPECT_EQ(Written(), "l");
}

TEST_F(ScanningSessionTest, AReleaseSelectsInTheInverseMethod) {
    StartScanning("METODO_VARRIMENTO Inverso\n");
    for (int level = 0; level < 2; ++level) {
        keys.KeyDown(kSwitch1);
        Drain();
        Tick(2);
        Wait(1);
        keys.KeyUp(kSwitch1);
        Drain();
        Tick(2);
    }
    EXPECT_EQ(Written(), "l");
}

TEST_F(ScanningSessionTest, AHeldSwitchCountsOnceHoweverOftenItsKeyRepeats) {
    StartScanning("LATENCIA_INTERRUPTORES_VARRIMENTO 800\n");
    frame.listener->OnKeyDown(kSwitch1, 0);
    for (int tick = 0; tick < 9; ++tick) {
        frame.listener->OnKeyDown(kSwitch1, 1 << 30);
        Tick(1);
    }
    EXPECT_EQ(Lit(), "0.0 0.1 0.2 0.3 ") << "repeats would start the latency anew for ever";
}

TEST_F(ScanningSessionTest, StepsAreHeardAndLogged) {
    StartScanning("PISTA_SONORA_BEEP_VARRIMENTO 1\nPISTA_SINTETIZADA_VARRIMENTO 1\nREGISTAR_EVENTOS 1\n");
    services.log.written.clear();
    ScanTo(KeyOf("o"));
    EXPECT_EQ(sounds.beeps, 3);
    EXPECT_EQ(services.cueSpeech.spoken, Texts("Palavras", "Letras", "letra ó"_w));
    std::vector<Text> types;
    for (const auto& event : services.log.written)
        types.push_back(event.event + " " + event.type + " " + event.element);
    const auto expected =
        Texts("SWITCH1_DOWN START_SCANNING_LINES ", "AUTO_TIMER SCANNING_ADVANCE_LINES ",
              "SWITCH1_DOWN LINE_SELECTION 1", "SWITCH1_DOWN GROUP_SELECTION 1.0",
              "SWITCH1_DOWN START_SCANNING_KEYS ", "SWITCH1_DOWN TEXT_KEY_SELECTION_o 1.0.0");
    auto next = expected.begin();
    for (const auto& type : types)
        if (next != expected.end() && type == *next)
            ++next;
    EXPECT_TRUE(next == expected.end()) << "missing: " << *next;
}

TEST_F(ScanningSessionTest, TheChosenKeyFlashesAndAKeyThatIsOnStaysLit) {
    StartScanning();
    ScanTo(KeyOf("Shift"));
    EXPECT_TRUE(Key(KeyOf("Shift")).flashed);
    for (int i = 0; i < 3; ++i)
        timers.Fire(Milliseconds(50));
    EXPECT_FALSE(Key(KeyOf("Shift")).flashed);
    EXPECT_TRUE(Key(KeyOf("Shift")).IsLit()) << "Shift waits for its key";
    ScanTo(KeyOf("o"));
    EXPECT_EQ(Written(), "O");
    EXPECT_FALSE(Key(KeyOf("Shift")).IsLit());
}

} // namespace
} // namespace ondrilo
