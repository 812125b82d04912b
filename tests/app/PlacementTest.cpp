#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

TEST_F(RunningSystem, ANormalWindowFitsEditorAndKeyboard) {
    StartWriting("POSICAO_INICIAL_JANELA_X 30\nPOSICAO_INICIAL_JANELA_Y 40\nALTURA_EDITOR_MENSAGENS 90\n");
    const auto keyboard = view->Keyboard().GetSize();
    EXPECT_EQ(frame.client, (Size{keyboard.width, keyboard.height + 90}));
    EXPECT_EQ(frame.position, (Point{30, 40}));
    EXPECT_EQ(windows.editor->area, (Rectangle{0, 0, keyboard.width, 90}));
    EXPECT_EQ(windows.keyboardPlace, (Point{0, 90}));

    Options().Set(option::CENTRAR_JANELA, 1);
    LayOut();
    EXPECT_EQ(frame.position,
              (Point{(1920 - frame.client.width - 16) / 2, (1080 - frame.client.height - 48) / 2}));
}

TEST_F(RunningSystem, AMaximizedWindowCentresItsElements) {
    frame.client = {1600, 900};
    StartWriting("INICIAR_JANELA_MAXIMIZADA 1\nINICIAR_JANELA_MINIMIZADA 1\nALTURA_EDITOR_MENSAGENS 100\n");
    EXPECT_EQ(frame.state, WindowState::Maximized) << "of both, maximised wins";
    frame.client = {1600, 900};
    LayOut();
    const auto keyboard = view->Keyboard().GetSize();
    const int left = (1600 - keyboard.width) / 2;
    EXPECT_EQ(windows.editor->area, (Rectangle{left, 0, keyboard.width, 100}));
    EXPECT_EQ(windows.keyboardPlace, (Point{left, 100}));

    Options().Set(option::CENTRA_ELEMENTOS_JANELA, 1);
    Options().Set(option::AJUSTA_COMPRIMENTO_EDITOR_MENSAGENS, 0);
    LayOut();
    const int top = (900 - keyboard.height - 100) / 2;
    EXPECT_EQ(windows.editor->area, (Rectangle{0, top, 1600, 100}));
    EXPECT_EQ(windows.keyboardPlace, (Point{left, top + 100}));
    EXPECT_EQ(frame.client, (Size{1600, 900}));
}

TEST_F(RunningSystem, AMinimizedWindowIsLeftAlone) {
    SetOptions("INICIAR_JANELA_MINIMIZADA 1\n");
    Start();
    EXPECT_EQ(frame.state, WindowState::Minimized);
    EXPECT_FALSE(journal.Has("activate"));
    const auto before = frame.client;
    Options().Set(option::ALTURA_EDITOR_MENSAGENS, 300);
    LayOut();
    EXPECT_EQ(frame.client, before);
}

TEST_F(RunningSystem, WithoutTheEditorTheKeyboardStandsAtTheTopAndLeavesTheFocusToOthers) {
    StartWriting("PROCESSADOR_TEXTO_INTERNO 0\n");
    EXPECT_EQ(windows.editor, nullptr);
    EXPECT_FALSE(frame.acceptsFocus);
    Click("o");
    EXPECT_TRUE(keys.events.empty()) << "a text key has no target";
    EXPECT_EQ(windows.keyboardPlace, (Point{0, 0}));
    EXPECT_EQ(frame.client, view->Keyboard().GetSize());
}

TEST_F(RunningSystem, TheTitleTellsTheStateOfTheSession) {
    folder.Write("configsis", "ADAPTACAO_CONTEXTO 1\n");
    StartWriting("REGISTAR_EVENTOS 1\n");
    const Text start = "Ondrilo V3.0: generico (Casa) (Logging Ligado)";
    EXPECT_EQ(frame.title, start + " (GPS Inactivo)");
    services.cooperation.up = true;
    services.cooperation.role = CooperativeRole::Server;
    frame.listener->OnDraw();
    EXPECT_EQ(frame.title, start + " (SERVIDOR)");
    view->Keyboard().SetEditing(true);
    frame.listener->OnDraw();
    EXPECT_EQ(frame.title, Text(start).append("|EDIÇÃO DE TECLADO|"_w));
}

TEST_F(RunningSystem, TheBackgroundFollowsTheProfile) {
    folder.Write("Fundo.bmp", "");
    StartWriting("IMAGEM_FUNDO fundo.bmp\nCOR_FUNDO_JANELA 255\nCOR_FUNDO_JANELA2 7\n");
    EXPECT_EQ(frame.background, (WindowBackground{folder.Path() / "Fundo.bmp", 1, 255, 7, 45}));
    frame.listener->OnDestroy();
    EXPECT_EQ(frame.background, std::nullopt);
}

TEST_F(RunningSystem, ABackgroundPictureOutsideTheDataFolderKeepsItsPath) {
    StartWriting("IMAGEM_FUNDO /outra;;;pasta/Fundo.bmp\n");
    EXPECT_EQ(frame.background->picture, "/outra pasta/Fundo.bmp");
}

TEST_F(RunningSystem, AWindowThatFleesOrFollowsStaysWholeOnTheScreenOfTheCaret) {
    desktop.screens.push_back({1920, -200, 1280, 1024});
    StartWriting("REPOSICIONAR_JANELA 1\nPERSEGUIR_CURSOR_TEXTO 1\nPOSICAO_INICIAL_JANELA_X 5\n");
    windows.editor->caret = {100, 100};
    Tick(20);
    EXPECT_EQ(frame.position.x, 5) << "not while the system's own window is in front";
    CaretFollower follower(Surroundings(), view->Profiles(), view->Keyboard(), view->TextTargets());
    frame.client = {600, 200}; // 616 by 248 with its decorations
    const struct {
        Point caret, flees, follows;
    } cases[] = {
        {{100, 100}, {1920 - 616, 1080 - 248}, {0, 100 + 40}}, // no room above
        {{1500, 900}, {0, 0}, {1500 - 616 / 2, 900 - 10 - 248}},
        {{1930, 300}, {3200 - 616, 824 - 248}, {1920, 300 - 10 - 248}}, // at the edge of the second screen
        {{3190, -150}, {1920, 824 - 248}, {3200 - 616, -150 + 40}},
    };
    for (const auto& place : cases) {
        windows.editor->caret = place.caret;
        Options().Set(option::REPOSICIONAR_JANELA, 1);
        follower.Move();
        EXPECT_EQ(frame.position, place.flees);
        Options().Set(option::REPOSICIONAR_JANELA, 0);
        follower.Move();
        EXPECT_EQ(frame.position, place.follows);
    }
    const int moves = frame.moves;
    follower.Move();
    EXPECT_EQ(frame.moves, moves) << "it stands there already";
    frame.position = {1, 2};
    windows.editor->caret = {};
    follower.Move();
    EXPECT_EQ(frame.position, (Point{1, 2})) << "nobody knows where the caret is";
    Click("outro.tec");
    windows.editor->caret = {1500, 900};
    follower.Move();
    EXPECT_LT(frame.position.x, 1500) << "a single line stands above the caret, however short it is";
}

TEST_F(RunningSystem, AColumnOfKeysGoesToTheOtherSideOfACaretAtTheEdge) {
    folder.Write("Casa.tec", "LINHA L\nGRUPO G\nTECLA TECLA_NORMAL o o o\n"
                             "LINHA M\nGRUPO G\nTECLA TECLA_NORMAL l l l\n");
    StartWriting();
    CaretFollower follower(Surroundings(), view->Profiles(), view->Keyboard(), view->TextTargets());
    frame.client = {600, 200};
    windows.editor->caret = {300, 900};
    follower.FollowCaret();
    EXPECT_EQ(frame.position, (Point{400, 1080 - 248})) << "no room below";
    windows.editor->caret.x = 1500;
    follower.FollowCaret();
    EXPECT_EQ(frame.position.x, 1500 - 100 - 616);
}

TEST_F(RunningSystem, AWindowWithoutAKeyboardStaysInSight) {
    SetOptions("NOME_TECLADO não;;;há\n"_w);
    Start();
    EXPECT_GT(frame.client.width, 250);
}

} // namespace
} // namespace ondrilo
