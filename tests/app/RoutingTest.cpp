#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

TEST(CountdownTest, IsDueFromTheEleventhTickOnButNeverWithinATick) {
    Countdown countdown;
    EXPECT_FALSE(countdown.Tick(0)) << "a stopped one is never due";
    countdown.Restart();
    for (int tick = 1; tick <= 10; ++tick)
        EXPECT_FALSE(countdown.Tick(1000)) << tick;
    EXPECT_TRUE(countdown.Tick(1000));
    EXPECT_TRUE(countdown.Tick(1000)) << "it stays due until it is stopped or restarted";
    countdown.Stop();
    EXPECT_FALSE(countdown.Tick(1000));
    countdown.Restart();
    for (int tick = 0; tick < 1000; ++tick)
        EXPECT_FALSE(countdown.Tick(1050));
    countdown.Restart();
    EXPECT_TRUE(countdown.Tick(0)) << "0 is due at once";
}

TEST_F(RunningSystem, PredictionWaitsForAPauseInTheWriting) {
    StartWriting("TEMPO_DE_PREDICAO 1000\n");
    Type("t");
    Tick(10);
    EXPECT_EQ(Labels(0)[0], "F1: olá"_w);
    Type("u");
    Tick(10);
    EXPECT_EQ(Labels(0)[0], "F1: olá"_w) << "each key starts the pause anew";
    Tick(1);
    EXPECT_EQ(Labels(0)[0], "F1: tudo");
    Type("do b");
    Tick(11);
    EXPECT_EQ(Labels(0)[0], "F1: bem");
    windows.editor->MoveCursor(2);
    queue.Post(Message::UM_LEFT_UP);
    Drain();
    Tick(11);
    EXPECT_EQ(Labels(0)[0], "F1: tudo") << "a click in the text predicts for its place";
}

TEST_F(RunningSystem, ControlThenShiftBringsTheMenuBack) {
    StartWriting("MOSTRAR_BARRAS_JANELA 0\nBLOQUEAR_MENU 0\n");
    frame.listener->OnActivateView();
    EXPECT_FALSE(frame.menuEnabled);
    EXPECT_FALSE(frame.captionVisible || frame.menuVisible || frame.statusBarVisible);
    Press(vk::Shift);
    Press(vk::Control);
    EXPECT_FALSE(frame.menuEnabled) << "the other order does nothing";
    Press(vk::Shift);
    EXPECT_TRUE(frame.menuEnabled);
    EXPECT_TRUE(frame.captionVisible && frame.menuVisible && frame.statusBarVisible);
    frame.listener->OnActivateView();
    EXPECT_TRUE(frame.menuEnabled) << "only the first activation decides";
}

TEST_F(RunningSystem, SwitchesAndTheWayBackToTheMenuWorkWithoutATarget) {
    StartWriting("PROCESSADOR_TEXTO_INTERNO 0\nMETODO_VARRIMENTO Regular\n");
    Choose(menu::DisableMenu);
    frame.listener->OnKeyDown(vk::Num0 + 5, 0);
    Tick(3);
    EXPECT_TRUE(Key({0, 0, 0}).highlighted);
    frame.listener->OnKeyDown(vk::Control, 0);
    frame.listener->OnKeyDown(vk::Shift, 0);
    EXPECT_TRUE(frame.menuEnabled);
}

TEST_F(RunningSystem, ASwitchKeyDoesNotWriteAndKeepsThePreview) {
    StartWriting("VER_ANTES_COMPLETAR 1\n");
    Click("o");
    EXPECT_TRUE(windows.preview.visible);
    Press(vk::Num0 + 5);
    EXPECT_EQ(Written(), "");
    EXPECT_TRUE(windows.preview.visible);
    Press('A');
    EXPECT_FALSE(windows.preview.visible);
}

TEST_F(RunningSystem, TheFocusSettlesBeforeTheTargetChanges) {
    StartWriting();
    desktop.MoveFocus(7);
    EXPECT_EQ(view->TextTargets().Current(), nullptr);
    desktop.MoveFocus(1);
    desktop.MoveFocus(7);
    desktop.MoveFocus(1);
    Tick(5);
    EXPECT_EQ(view->TextTargets().Current(), nullptr);
    Tick(1);
    EXPECT_TRUE(view->TextTargets().IsInternal());
    EXPECT_TRUE(windows.editor->hasFocus);

    desktop.ours.insert(2);
    desktop.programs[2] = 100;
    desktop.MoveFocus(2);
    EXPECT_TRUE(view->TextTargets().IsInternal()) << "another window of the same program keeps the target";
}

TEST_F(RunningSystem, AFocusThatNobodyHasGoesToWhoWasWrittenInLast) {
    StartWriting();
    Click("Shift");
    otherProgram.refuses = true;
    desktop.MoveFocus(7);
    Tick(6);
    EXPECT_TRUE(keys.held.empty()) << "everything typed there would be in capitals";
    desktop.MoveFocus(0);
    Tick(6);
    EXPECT_EQ(desktop.foreground, 7U) << "a click on the bare desktop would end the writing";
    desktop.programs[8] = desktop.programs[7];
    desktop.MoveFocus(8);
    desktop.MoveFocus(0);
    Tick(6);
    EXPECT_EQ(desktop.foreground, 8U) << "of two windows of a program, the text belongs in the latter";
    desktop.programs.erase(8);
    desktop.programs.erase(7);
    desktop.MoveFocus(0);
    journal.Take();
    Tick(6);
    EXPECT_TRUE(journal.Has("activate")) << "where nothing has the focus, clicks would write nowhere";
    frame.state = WindowState::Minimized;
    desktop.MoveFocus(7);
    desktop.MoveFocus(0);
    journal.Take();
    Tick(6);
    EXPECT_FALSE(journal.Has("activate")) << "a minimised window would come back";
    frame.state = WindowState::Normal;
    frame.listener->OnDraw();
    Tick(6);
    EXPECT_TRUE(journal.Has("activate")) << "it came back from the task bar";
}

TEST_F(RunningSystem, WhatIsWrittenIsHeardAsTheProfileWants) {
    StartWriting("OUVIR_LETRAS 1\nOUVIR_PALAVRAS 1\nOUVIR_FRASES 1\n");
    Type("tu.");
    EXPECT_EQ(services.speech.spoken, Texts("t", "u", ".", "tu", "tu."));
}

TEST_F(RunningSystem, HoveringSpeaksTheWordOfAPredictionAndTheDescriptionOfOthers) {
    StartWriting("PALAVRAS_PREDITAS_EM_MAIUSCULAS 1\n");
    queue.Post(Message::UM_KEY_HOVER, COnScreenKeyIdentifier{0, 0, 1}.Packed());
    queue.Post(Message::UM_KEY_HOVER, KeyOf("l").Packed());
    queue.Post(Message::UM_KEY_HOVER, COnScreenKeyIdentifier{0, 0, 3}.Packed());
    Drain();
    EXPECT_EQ(services.speech.spoken, Texts("tudo", "letra éle"_w));
}

TEST_F(RunningSystem, OnlyTheLeftButtonSelectsAKey) {
    StartWriting();
    Click(KeyOf("o"), 1);
    Click(KeyOf("o"), 2);
    EXPECT_EQ(Written(), "");
}

TEST(WritingClockTest, SilenceIsNoWritingTime) {
    FakeClock clock;
    WritingClock writing(clock);
    writing.Reset();
    clock.now += std::chrono::seconds(5);
    writing.Resume();
    clock.now += std::chrono::seconds(30);
    writing.Pause(20);
    EXPECT_EQ(writing.EffectiveSeconds(), 10);
    clock.now += std::chrono::seconds(40);
    writing.Resume();
    clock.now += std::chrono::seconds(1);
    EXPECT_EQ(writing.EffectiveSeconds(), 11);
    EXPECT_EQ(writing.TotalSeconds(), 76);
}

TEST_F(RunningSystem, LinksSequencesAndProgramsDoNotWrite) {
    folder.Write("Casa.tec", Text(kKeyboard) + "TECLA TECLA_NORMAL P P /opt/um;;;dois.exe\n"
                                               "TECLA TECLA_NORMAL C C [Apagar-Palavra;;;tudo]\n"
                                               "TECLA TECLA_NORMAL E E [ApagarPalavra]\n");
    StartWriting();
    Click("/opt/um dois.exe");
    EXPECT_EQ(programs.started, Texts("/opt/um dois.exe"));
    Type("bom dia");
    Click("[ApagarPalavra]");
    EXPECT_EQ(Written(), "bom dia");
    Click("[Apagar-Palavra tudo]");
    EXPECT_EQ(Written(), "bom ");
    keys.events.clear();
    Click("{Ctrl+a Ctrl+c}");
    EXPECT_EQ(keys.events,
              Texts("down 17", "down 65", "up 65", "up 17", "down 17", "down 67", "up 67", "up 17"));
    journal.Take();
    Click("outro.tec");
    EXPECT_TRUE(journal.Has("redraw")) << "a keyboard of the same size would show no predictions";
    EXPECT_EQ(frame.title, "Ondrilo V3.0: generico (outro) (Logging Desligado)");
    EXPECT_EQ(services.speech.spoken, Texts("O outro"));
    EXPECT_EQ(Written(), "bom ") << "the text stays when the keyboard changes";
    EXPECT_EQ(Options().Get(option::NOME_TECLADO), "Casa");
}

TEST_F(RunningSystem, AHotKeyOfAKeyboardThatWentWritesNothingAndTheNewKeysGetTheirs) {
    folder.Write("geral.frs", "___ 1\nbom|dia. 3\n");
    folder.Write("geral.paf", "___ bom|dia. 3\n");
    folder.Write("outro.tec", "LINHA L\nGRUPO G\nTECLA TECLA_NORMAL x x x\nTECLA TECLA_PREDICAO_FRASE\n");
    StartWriting();
    Click("outro.tec");
    EXPECT_TRUE(journal.Has("redraw"));
    Press(vk::F1);
    EXPECT_EQ(Written(), "") << "it stood for a word that is on no key now";
    frame.listener->OnDraw();
    EXPECT_EQ(Labels(0), Texts("x", "F1: bom dia."));
    Press(vk::F1);
    EXPECT_EQ(Written(), "bom dia. ");
}

} // namespace
} // namespace ondrilo
