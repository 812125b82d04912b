#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

constexpr COnScreenKeyIdentifier kFirstWordKey{0, 0, 0};

constexpr COnScreenKeyIdentifier kSentenceKey{0, 0, 2};
constexpr COnScreenKeyIdentifier kThirdWordKey{0, 0, 3};

TEST_F(RunningSystem, APersonWritesASentenceWithClicksPredictionsAndHotKeys) {
    StartWriting();
    EXPECT_EQ(Labels(0), Texts("F1: olá"_w, "F2: tudo", "", ""));

    Click("Shift");
    Click("o");
    Click("l");
    EXPECT_EQ(Written(), "Ol");
    Pause();
    EXPECT_EQ(Labels(0), Texts("F1: olá"_w, "F2: ola", "", ""));

    Click(kFirstWordKey);
    EXPECT_EQ(Written(), "Olá "_w);
    Press(vk::Backspace);
    Click(".");
    Click("Space");
    Type("Tu");
    Pause();
    Press(vk::F1);
    EXPECT_EQ(Written(), "Olá. Tudo "_w);
    Click("b");
    Pause();
    EXPECT_EQ(Labels(0), Texts("F1: bem", "F2: bom", "", ""));
    Press(vk::F1);
    EXPECT_EQ(Written(), "Olá. Tudo bem "_w);

    frame.listener->OnDestroy();
    EXPECT_EQ(folder.Read("generico.pal"), "___ 1\nbem 1\nolá 1\ntudo 1\n"_w);
    EXPECT_EQ(folder.Read("generico.par"), "___ olá 1\nolá tudo 1\ntudo bem 1\n"_w);
    EXPECT_EQ(folder.Read("generico.frs"), "___ 1\nolá. 1\n"_w);
}

TEST_F(RunningSystem, HotKeysFollowTheKeysAcrossTheScreenWhateverTheirKindUpToTheNinth) {
    Text keys = "LINHA L\nGRUPO G\nTECLA TECLA_PREDICAO\nTECLA TECLA_PREDICAO_FRASE\n", words, pairs;
    for (const char c : Text("abcdefghi")) {
        keys += "TECLA TECLA_PREDICAO\n";
        words += Text("p") + c + " 1\n";
        pairs += Text("___ p") + c + " " + std::to_string('z' - c) + "\n";
    }
    folder.Write("Casa.tec", keys);
    folder.Write("geral.pal", "___ 1\n" + words);
    folder.Write("geral.par", pairs);
    folder.Write("geral.frs", "___ 1\nbom|dia. 3\n");
    folder.Write("geral.paf", "___ bom|dia. 3\n");
    StartWriting();
    auto labels = Labels(0);
    labels.resize(10);
    EXPECT_EQ(labels, Texts("F1: pa", "F2: bom dia.", "F3: pb", "F4: pc", "F5: pd", "F6: pe", "F7: pf",
                            "F8: pg", "F9: ph", "pi"));
    Press(vk::F1 + 1);
    EXPECT_EQ(Written(), "bom dia. ");
}

TEST_F(RunningSystem, PagesOfPredictionsGoRoundAndTheLastOneIsMarked) {
    folder.Write("geral.par", "___ bem 9\n___ bom 8\n___ estou 7\n___ olá 5\n___ tudo 2\n"_w);
    StartWriting("NUMERO_MAXIMO_PALAVRAS_PREDITAS 2\n");
    EXPECT_EQ(Labels(0), Texts("F1: bem", "F2: bom", "", ""));
    Click(kThirdWordKey);
    EXPECT_EQ(Written(), "") << "the profile leaves this key unused";
    const Text more(Key({2, 0, 1}).data.output);
    Click(more);
    EXPECT_EQ(Labels(0), Texts("F1: estou", "F2: olá"_w, "", ""));
    EXPECT_FALSE(Key(kFirstWordKey).lastPageMark);
    Click(more);
    EXPECT_EQ(Labels(0), Texts("F1: tudo", "", "", ""));
    EXPECT_TRUE(Key(kFirstWordKey).lastPageMark);

    Click(kFirstWordKey);
    EXPECT_EQ(Written(), "tudo ") << "a key stands for the word of its page";
    Press(vk::Backspace);
    for (int i = 0; i < 4; ++i)
        Press(vk::Backspace);
    Pause();
    for (int i = 0; i < 3; ++i)
        Click(more);
    EXPECT_EQ(Labels(0), Texts("F1: bem", "F2: bom", "", ""));
    EXPECT_FALSE(Key(kFirstWordKey).lastPageMark);

    Click(more);
    frame.listener->OnDraw();
    EXPECT_EQ(Labels(0), Texts("F1: bem", "F2: bom", "", "")) << "exposure goes back to the first page";
}

TEST_F(RunningSystem, WithoutHotKeysNoKeyIsBlockedOrDispatched) {
    StartWriting("TECLAS_COMPLETAR 0\n");
    EXPECT_EQ(Labels(0)[0], ": olá"_w);
    Type("ab");
    Press(vk::Backspace);
    EXPECT_EQ(Written(), "a");
    Press('0' + 1);
    EXPECT_EQ(Written(), "a1");
}

TEST_F(RunningSystem, ShiftLastsForOneKeyAndASecondPressCancelsIt) {
    StartWriting();
    const auto shift = KeyOf("Shift");
    Click(shift);
    EXPECT_TRUE(Key(shift).IsLit());
    Click("o");
    EXPECT_FALSE(Key(shift).IsLit());
    Click(shift);
    Click(shift);
    EXPECT_FALSE(Key(shift).IsLit());
    Click("l");
    EXPECT_EQ(Written(), "Ol");
    Click(shift);
    frame.listener->OnDestroy();
    EXPECT_EQ(keys.events.back(), "up 16") << "the end of the session releases it";
}

TEST_F(RunningSystem, CapsLockKeysFollowItsState) {
    keys.capsLock = true;
    StartWriting();
    const auto caps = KeyOf("CapsLock");
    EXPECT_TRUE(Key(caps).IsLit());
    Press(vk::CapsLock);
    EXPECT_FALSE(Key(caps).IsLit());
}

TEST_F(RunningSystem, ASingleWordOnASentenceKeyCountsAsNoWordOfTheWordList) {
    folder.Write("geral.frs", "___ 1\nobrigado 3\n");
    folder.Write("geral.paf", "___ obrigado 3\n");
    StartWriting("REGISTAR_EVENTOS 1\n");
    Click(kSentenceKey);
    EXPECT_EQ(Written(), "obrigado ");
    EXPECT_EQ(services.metrics.completions, 0);
}

TEST_F(RunningSystem, AnAbbreviationIsReplacedByItsExpansion) {
    folder.Write("generico.abr", "bd bom dia\n");
    StartWriting("OUVIR_ANTES_COMPLETAR 1\nVER_ANTES_COMPLETAR 1\n");
    Type("bd");
    Press(vk::Tab);
    EXPECT_EQ(services.speech.spoken, Texts("bom dia"));
    EXPECT_EQ(windows.preview.text, "bom dia");
    EXPECT_EQ(Written(), "bd");
    Press(vk::Tab);
    EXPECT_EQ(Written(), "bom dia ");
    Press(vk::Tab);
    EXPECT_EQ(Written(), "bom dia ") << "there is no abbreviation after the blank";
}

TEST_F(RunningSystem, LearningLinksTheFirstWordAfterABreakToTheLastBefore) {
    StartWriting();
    Type("tudo ");
    Click("[Limpar-Area-Trabalho]");
    EXPECT_EQ(Written(), "");
    Type("bem ");
    frame.listener->OnDestroy();
    EXPECT_EQ(folder.Read("generico.par"), "___ bem 1\n___ tudo 1\ntudo bem 1\n");
}

TEST_F(RunningSystem, NothingIsLearnedWithoutAdaptation) {
    StartWriting("ADAPTACAO_UTILIZADOR 0\nTECLA_SINTESE_FRASE F12\n");
    Type("tudo bem. Bom");
    Press(vk::F1 + 11);
    EXPECT_EQ(services.speech.spoken, Texts("Bom"));
    EXPECT_FALSE(Dictionary().UserWordsChanged() || Dictionary().UserSentencesChanged());
}

TEST_F(RunningSystem, PredictionsLeaveOutWhatTheProfileDoesNotWant) {
    folder.Write("geral.par", "___ bem 9\n___ bom 8\n___ estou 7\n"_w);
    StartWriting("LETRAS_NAO_PRETENDIDAS u\nSEQUENCIAS_LETRAS_NAO_PRETENDIDAS xx,om\n");
    EXPECT_EQ(Labels(0), Texts("F1: bem", "", "", ""));
    EXPECT_EQ(Key(kSentenceKey).data.label, "");
}

TEST_F(RunningSystem, WritesInAnotherProgramAsInTheEditor) {
    StartWriting("REGISTAR_EVENTOS 1\nTECLA_MANIPULO1 Home\n");
    desktop.titles[7] = "Carta";
    GoToOtherProgram();
    EXPECT_EQ(services.log.written.back().type, "Carta");
    EXPECT_EQ(otherProgram.followed, 200U);
    EXPECT_TRUE(otherProgram.specialKeys.contains(vk::F1 + 9));
    Click("Shift");
    Click("o");
    Click("l");
    EXPECT_EQ(otherProgram.surface.text, "Ol");
    EXPECT_TRUE(keys.held.empty()) << "the letter that comes back ends Shift";
    Pause();
    EXPECT_EQ(Labels(0).front(), "F1: olá"_w);
    otherProgram.Press(vk::F1);
    EXPECT_EQ(otherProgram.surface.text, "Olá "_w);
    EXPECT_TRUE(Dictionary().GetWord("olá"_w)) << "learned as in the editor";
    EXPECT_EQ(Written(), "") << "the editor has no part in it";

    otherProgram.Press(vk::Home);
    EXPECT_EQ(view->TextTargets().Current()->GetPreviousWord(), "Olá"_w) << "a switch moves nothing";
    otherProgram.Click();
    otherProgram.Answer("tudo b", 6);
    Pause();
    EXPECT_EQ(Labels(0).front(), "F1: bem") << "from the text that really stands there";

    Click(KeyOf("Enter"));
    desktop.MoveFocus(0);
    desktop.MoveFocus(7);
    Tick(6);
    EXPECT_EQ(view->TextTargets().Current()->GetPreviousWord(), "b")
        << "a window manager passed through no window";
    desktop.programs[9] = 300;
    desktop.MoveFocus(0);
    desktop.foreground = 9;
    Tick(6);
    EXPECT_EQ(otherProgram.watched, 9U) << "the timer was quicker than the news of the focus";
    desktop.MoveFocus(1);
    EXPECT_EQ(otherProgram.watched, 0U) << "its keys are free again";
}

TEST_F(RunningSystem, WhatIsSecretIsNeitherLearnedNorLoggedNorSpoken) {
    StartWriting("REGISTAR_EVENTOS 1\nREGISTA_EVENTOS_CONTROLO 1\nOUVIR_LETRAS 1\nOUVIR_PALAVRAS 1\n"
                 "OUVIR_DEPOIS_COMPLETAR 1\nTECLA_SINTESE_PALAVRA F11\n");
    otherProgram.isPassword = true;
    GoToOtherProgram();
    ASSERT_EQ(otherProgram.watched, 7U);
    services.log.written.clear();
    otherProgram.Press('S');
    otherProgram.Write("segredo ");
    otherProgram.Press(vk::F1 + 10);
    Click("o");
    SelectByScanning(KeyOf("l"));
    EXPECT_FALSE(Dictionary().GetWord("segredo"));
    EXPECT_TRUE(services.log.written.empty());
    EXPECT_EQ(services.speech.spoken, Texts());
    EXPECT_EQ(services.metrics.counts[Metric::KeyPress], 0);
}

} // namespace
} // namespace ondrilo
