#pragma once

#include "app/CTessivorView.h"
#include "tests/app/RecordingServices.h"
#include "tests/support/FakeClipboard.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFrameWindow.h"
#include "tests/support/FakeKeyOutput.h"
#include "tests/support/FakeMeasures.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/FakeOptionDialogs.h"
#include "tests/support/FakeOtherProgram.h"
#include "tests/support/FakeSessionWindows.h"
#include "tests/support/FakeSounds.h"
#include "tests/support/FakeSpeechEngine.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ondrilo {

struct FakePrograms : ProgramStarter {
    void Start(TextView path) override { started.emplace_back(path); }
    std::vector<Text> started;
};

template <typename... Parts>
std::vector<Text> Texts(const Parts&... parts) {
    return {Text(parts)...};
}

/// The whole system over fakes, with real files in a folder of its own. The keyboard "Casa" has, from the
/// top: three word keys and a sentence key; the keys of "o", "l", "á", ".", blank; and the others by name.
class RunningSystem : public testing::Test {
  protected:
    static constexpr TextView kKeyboard =
        "LINHA Predição\nGRUPO Palavras\n"
        "TECLA TECLA_PREDICAO\nTECLA TECLA_PREDICAO\nTECLA TECLA_PREDICAO_FRASE\nTECLA TECLA_PREDICAO\n"
        "LINHA Letras\nGRUPO Letras\n"
        "TECLA TECLA_NORMAL o letra;;;ó o\nTECLA TECLA_NORMAL l letra;;;éle l\n"
        "TECLA TECLA_NORMAL á letra;;;á á\nTECLA TECLA_NORMAL . ponto .\n"
        "TECLA TECLA_NORMAL Espaço espaço Space\nTECLA TECLA_NORMAL b letra;;;bê b\n"
        "LINHA Comandos\nGRUPO Comandos\n"
        "TECLA TECLA_NORMAL Shift maiúscula Shift\nTECLA TECLA_NORMAL Mais mais "
        "[Mostrar-Predições-Seguintes]\n"
        "TECLA TECLA_NORMAL Ligação ligação outro.tec\nTECLA TECLA_NORMAL Limpar limpar "
        "[Limpar-Area-Trabalho]\n"
        "TECLA TECLA_NORMAL Copiar copiar {Ctrl+a;;;Ctrl+c}\nTECLA TECLA_NORMAL Enter fim;;;de;;;linha "
        "Enter\n"
        "TECLA TECLA_NORMAL Registo registo [Trocar-Modo-Logging]\n"
        "TECLA TECLA_NORMAL Maiúsculas maiúsculas CapsLock\n"_w;
    static constexpr TextView kOptions =
        "NOME_TECLADO Casa\nTECLAS_COMPLETAR 112\nADAPTACAO_UTILIZADOR 1\nBLOQUEAR_MENU 1\n"
        "TEMPO_DE_PREDICAO 300\nNOME_SINTETIZADOR_FALA Joana\n";

    RunningSystem() {
        for (const char* file :
             {"generico.pal", "generico.par", "generico.frs", "generico.paf", "generico.abr", "ana.pal",
              "ana.par", "ana.frs", "ana.paf", "ana.abr", "geral.cg", "geral.pcg", "geral.frs", "geral.paf"})
            folder.Write(file, "");
        folder.Write("geral.pal", "___ 1\nbem 30\nbom 20\nestou 5\nola 1\nolá 50\ntudo 40\n"_w);
        folder.Write("geral.par", "___ olá 5\n___ tudo 2\n"_w);
        folder.Write("utils", "ana\n");
        folder.Write("Casa.tec", kKeyboard);
        folder.Write("outro.tec", "DESCRICAO O;;;outro\nLINHA L\nGRUPO G\nTECLA TECLA_NORMAL x x x\n");
        SetOptions("");
        folder.Write("ana.cfg", Text(kOptions) + "TECLAS_COMPLETAR 48\n");
        desktop.ours = {1};
        desktop.programs = {{1, 100}, {7, 200}};
        desktop.foreground = 1;
    }
    ~RunningSystem() override {
        if (view && frame.listener)
            frame.listener->OnDestroy();
        view.reset();
        EXPECT_EQ(windows.alive, 0) << "a window outlived its session";
        EXPECT_TRUE(keys.held.empty()) << "a key was left down";
        EXPECT_EQ(frame.holds, 0);
    }

    /// Options of the profile "generico" over those of the fixture.
    void SetOptions(TextView options) const { folder.Write("generico.cfg", Text(kOptions).append(options)); }
    [[nodiscard]] Environment Surroundings() {
        const DataFolder data(folder.Path());
        return {data,         queue,       clock,          timers,        desktop,   keys,   otherProgram,
                otherProgram, boxes,       dialogs,        optionDialogs, clipboard, sounds, speechEngine,
                programs,     textMeasure, pictureMeasure, frame,         windows};
    }
    void Start() {
        view = std::make_unique<CTessivorView>(Surroundings(), services.All());
        view->OnInitialUpdate();
    }
    /// Starts and lets the focus settle, so that the editor is the target.
    void StartWriting(TextView options = "") {
        SetOptions(options);
        Start();
        Tick(6);
        journal.Take();
    }
    /// The person goes to another program and stays there.
    void GoToOtherProgram() {
        otherProgram.settle = [this] {
            Drain();
        };
        keys.surface = &otherProgram.surface;
        desktop.MoveFocus(7);
        Tick(6);
    }
    void Drain() {
        queue.Drain([this](const MessageEvent& event) { view->Handle(event); });
    }
    void Tick(int times) {
        for (int i = 0; i < times; ++i) {
            timers.Fire(Milliseconds(100));
            Drain();
        }
    }
    /// What waits for its turn in the next layout takes place.
    void LayOut() {
        queue.Post(Message::UM_LAYOUT);
        Drain();
    }
    void Choose(int command) { frame.listener->OnMenuCommand(command); }
    CDictionary& Dictionary() { return view->Profiles().Active().dictionary; }
    [[nodiscard]] const COnScreenKey& Key(COnScreenKeyIdentifier key) const {
        return view->Keyboard().Key(key);
    }
    [[nodiscard]] COnScreenKeyIdentifier KeyOf(TextView output) const {
        const auto found = view->Keyboard().KeysByOutput(output);
        EXPECT_FALSE(found.empty()) << ToUtf8(output);
        return found.empty() ? COnScreenKeyIdentifier{} : found.front();
    }
    void Click(COnScreenKeyIdentifier key, int button = 0) {
        queue.Post(Message::UM_KEY_PRESS, key.Packed(), button);
        Drain();
    }
    void Click(TextView output) { Click(KeyOf(output)); }
    void SelectByScanning(COnScreenKeyIdentifier key) {
        queue.Post(Message::UM_SCAN_KEY_SELECTED, key.Packed());
        Drain();
    }
    /// The person's own key.
    void Press(int code) {
        keys.KeyDown(code);
        keys.KeyUp(code);
        Drain();
    }
    void Type(TextView text) {
        for (const char c : text)
            keys.TypeCharacter(c);
        Drain();
    }
    /// Lets the writing pause until the prediction has run.
    void Pause() { Tick(5); }
    [[nodiscard]] Text Written() const { return windows.editor ? windows.editor->text : Text("no editor"); }
    [[nodiscard]] std::vector<Text> Labels(int line) const {
        std::vector<Text> labels;
        for (const auto& group : view->Keyboard().Lines().at(static_cast<std::size_t>(line)).groups)
            for (const auto& key : group.keys)
                labels.push_back(key.data.label);
        return labels;
    }
    CUserProfileProperties& Options() { return view->Profiles().Active().properties; }

    TemporaryFolder folder;
    Journal journal;
    MessageQueue queue;
    FakeClock clock;
    FakeTimers timers;
    FakeDesktop desktop;
    FakeKeyOutput keys;
    FakeOtherProgram otherProgram;
    FakeMessageBoxes boxes;
    FakeDialogs dialogs;
    FakeOptionDialogs optionDialogs;
    FakeClipboard clipboard;
    FakeSounds sounds;
    FakeSpeechEngine speechEngine;
    FakePrograms programs;
    FakeTextMeasure textMeasure;
    FakePictureMeasure pictureMeasure;
    FakeFrameWindow frame{journal};
    FakeSessionWindows windows{journal, keys};
    RecordingServices services{journal};
    std::unique_ptr<CTessivorView> view;
};

} // namespace ondrilo
