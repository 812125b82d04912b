#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

TEST_F(RunningSystem, TheSystemStartsInItsOrderAndShowsTheNoticeMeanwhile) {
    folder.Write("configsis", "PORTA_GPS com3\n");
    SetOptions("REGISTAR_EVENTOS 1\nSOM_INICIAL_REGISTO_EVENTOS 1\nAGENTE_ACTIVO 1\nNOME_AGENTE Merlin\n");
    Start();
    EXPECT_EQ(journal.Take(),
              Texts("create notice", "open record", "gps com3", "bluetooth", "busy", "create notice",
                    "destroy notice", "start log", "voice Joana", "voice Joana", "create keyboard",
                    "show window", "background", "agent Merlin", "create editor", "create preview", "redraw",
                    "not busy", "activate", "destroy notice"));
    EXPECT_EQ(windows.texts,
              Texts("Ondrilo a iniciar... Por favor aguarde.", "Quinta-feira 01-01-1970 00:00:00.000"));
    EXPECT_EQ(sounds.playedToEnd.size(), 1U);
    EXPECT_TRUE(frame.topMost);
    EXPECT_TRUE(frame.acceptsFocus);
    EXPECT_TRUE(desktop.IsObserved());
    EXPECT_EQ(windows.previewStyle, (TextWindowStyle{{"Arial", 10}, 0x800000, 0x00FFFF, 5}));
}

TEST_F(RunningSystem, TheSystemEndsInItsOrderAndSavesTheProfile) {
    StartWriting("REGISTAR_EVENTOS 1\nAGENTE_ACTIVO 1\n");
    services.cooperation.up = true;
    Options().Set(option::TEMPO_DE_PREDICAO, 700);
    frame.listener->OnDestroy();
    EXPECT_EQ(journal.Take(),
              Texts("close record", "stop bluetooth", "stop gps", "end log", "end cooperation",
                    "destroy preview", "destroy editor", "agent goes", "destroy keyboard", "no background",
                    "release voice", "release voice", "redraw"));
    EXPECT_FALSE(desktop.IsObserved());
    EXPECT_NE(folder.Read("generico.cfg").find("TEMPO_DE_PREDICAO 700\n"), Text::npos);
}

TEST_F(RunningSystem, AChangeOfProfileRunsBothSessionsWhole) {
    StartWriting("TIPO_PREENCHIMENTO_JANELA 1\n");
    folder.Write("Casa.tec",
                 Text(kKeyboard) + "TECLA TECLA_NORMAL Ana Ana [Alterar-Perfil-Utilizador;;;ana]\n");
    Click("outro.tec");
    EXPECT_EQ(Options().activeKeyboardName, "outro");
    dialogs.chosenProfile = "generico";
    Choose(menu::OpenProfile);
    EXPECT_EQ(windows.notice.text, "A carregar perfil... Por favor aguarde.");
    EXPECT_EQ(Options().activeKeyboardName, "Casa") << "the profile opens with its own keyboard";
    journal.Take();

    Click("[Alterar-Perfil-Utilizador ana]");
    EXPECT_EQ(Options().profileName, "ana");
    EXPECT_EQ(frame.title, "Ondrilo V3.0: ana (Casa) (Logging Desligado)");
    EXPECT_FALSE(journal.Has("create notice"));
    Tick(6);
    EXPECT_EQ(Labels(0)[0], "0: olá"_w) << "the hot keys are those of the new profile";
}

TEST_F(RunningSystem, AnUnsavedKeyboardIsAskedAboutWithoutAWayBack) {
    StartWriting();
    EXPECT_FALSE(view->Keyboard().IsModified()) << "predictions on the keys are no change";
    view->Keyboard().MarkModified();
    boxes.answers = {Answer::Yes};
    Click("outro.tec");
    const auto question = "O teclado corrente foi alterado. Pretende guardar as alterações?"_w;
    EXPECT_EQ(boxes.shown, Texts(question));
    EXPECT_EQ(folder.Read("Casa.tec").substr(0, 7), "\nLINHA ") << "it was written anew";

    view->Keyboard().MarkModified();
    boxes.answers = {Answer::No};
    const auto before = folder.Read("outro.tec");
    dialogs.chosenProfile = "ana";
    Choose(menu::OpenProfile);
    EXPECT_EQ(boxes.shown, Texts(question, question));
    EXPECT_EQ(folder.Read("outro.tec"), before);
}

TEST_F(RunningSystem, WhileAKeyboardIsAskedAboutNothingElseTakesItAway) {
    StartWriting();
    boxes.answers = {Answer::No, Answer::No};
    dialogs.chosenProfile = "ana";
    view->Keyboard().MarkModified();
    boxes.whileAsked = [this] {
        queue.Post(Message::UM_KEY_PRESS, KeyOf("outro.tec").Packed());
        queue.Post(Message::UM_SCAN_KEY_SELECTED, COnScreenKeyIdentifier{0, 0, 0}.Packed());
        Drain();
        EXPECT_EQ(boxes.shown.size(), 1U) << "a second link";
    };
    Click("outro.tec");
    EXPECT_EQ(Options().activeKeyboardName, "outro");
    EXPECT_EQ(Written(), "") << "a key of the former keyboard was taken for the one in its place";

    view->Keyboard().MarkModified();
    boxes.whileAsked = [this] {
        Choose(menu::OpenProfile);
        frame.listener->OnKeyDown('A', 0);
        EXPECT_EQ(boxes.shown.size(), 2U) << "a second change of profile";
    };
    Choose(menu::OpenProfile);
    EXPECT_EQ(Options().profileName, "ana");
}

TEST_F(RunningSystem, HugeNumbersInAProfileHarmNothing) {
    StartWriting("TECLAS_COMPLETAR 2147483647\nTEMPO_INACTIVIDADE_COMUNICACAO 2147483647\n"
                 "TEMPO_DE_PREDICAO -2147483648\nALTURA_EDITOR_MENSAGENS 2147483647\n"
                 "AGENTE_ACTIVO 1\nPOSICAO_INICIAL_JANELA_X -2147483648\n"
                 "NUMERO_MAXIMO_LETRAS_PALAVRAS_PREDITAS 2147483647\n"
                 "NUMERO_MAXIMO_LETRAS_FRASES_PREDITAS 2147483647\n");
    Type("tu");
    Pause();
    EXPECT_EQ(Labels(0)[0], ": olá"_w);
    Click({0, 0, 1});
    EXPECT_EQ(Written(), "tudo ");
}

TEST_F(RunningSystem, NoMessageIsHandledWhileASessionStops) {
    StartWriting();
    Click(KeyOf("Shift"));
    queue.Post(Message::UM_KEY_PRESS, KeyOf("o").Packed());
    frame.listener->OnDestroy();
    Drain();
    EXPECT_TRUE(std::find(keys.events.begin(), keys.events.end(), "type o") == keys.events.end());
}

TEST_F(RunningSystem, TheStartOpensTheProfileOfTheSystemOptions) {
    folder.Write("configsis", "PERFIL_UTILIZADOR_ARRANQUE ana\n");
    Start();
    EXPECT_EQ(Options().profileName, "ana");
}

TEST_F(RunningSystem, WithContextAdaptationTheStartWaitsForTheFirstReadings) {
    folder.Write("configsis", "ADAPTACAO_CONTEXTO 1\n");
    services.context.start = "ana";
    Start();
    EXPECT_EQ(clock.now, Milliseconds(20'000));
    EXPECT_EQ(Options().profileName, "ana");
}

TEST_F(RunningSystem, TheContextChangesTheProfileOnlyOfAPersonWhoIsSilent) {
    folder.Write("configsis", "ADAPTACAO_CONTEXTO 1\n");
    StartWriting("TEMPO_INACTIVIDADE_COMUNICACAO 7\n");
    services.context.next = "ana";
    Tick(50);
    Type("a");
    Tick(70);
    EXPECT_EQ(services.context.asked, 0);
    Tick(2);
    EXPECT_EQ(services.context.asked, 1);
    EXPECT_EQ(Options().profileName, "ana");
}

TEST_F(RunningSystem, AFailingAgentIsSwitchedOff) {
    services.agent.loads = false;
    StartWriting("AGENTE_ACTIVO 1\n");
    EXPECT_FALSE(Options().IsOn(option::AGENTE_ACTIVO));
    EXPECT_TRUE(services.agent.played.empty());
}

TEST_F(RunningSystem, WithoutTimersTheSessionGoesOnWithoutClocks) {
    timers.exhausted = true;
    Start();
    EXPECT_EQ(boxes.shown,
              Texts("Nao existe nenhum timer disponivel. O sistema não irá funcionar correctamente."_w,
                    "Nao existe um timer disponivel. O sistema não irá funcionar correctamente."_w));
    EXPECT_TRUE(view->Keyboard().IsOpen());
}

TEST_F(RunningSystem, ABrokenKeyboardShowsWhatCouldBeReadAndTellsTheLine) {
    folder.Write("Casa.tec",
                 "LINHA L\nGRUPO G\nTECLA TECLA_NORMAL o o o\nLINHA M\nTECLA TECLA_NORMAL x x x\n");
    Start();
    EXPECT_EQ(frame.statusMessages, Texts("O teclado Casa só foi lido até à linha 5."_w));
    Tick(6);
    Click("o");
    EXPECT_EQ(Written(), "o");
}

} // namespace
} // namespace ondrilo
