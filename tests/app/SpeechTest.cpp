#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

constexpr int kSpeakWord = vk::F1 + 10, kSpeakSentence = vk::F1 + 11;

class SpeechTest : public RunningSystem {
  protected:
    SpeechTest() {
        constexpr TextView commands = "TECLA TECLA_NORMAL P P [Sintetizar-Fala-Palavra]\n"
                                      "TECLA TECLA_NORMAL F F [Sintetizar-Fala-Frase]\n"
                                      "TECLA TECLA_NORMAL T T [Sintetizar-Fala-Area-Trabalho]\n"
                                      "TECLA TECLA_NORMAL D o;;;que;;;sou [Sintetizar-Descrição-Tecla]\n"_w;
        folder.Write("Casa.tec", Text(kKeyboard).append(commands));
    }
    /// What was spoken since the last call, and what the log says of it.
    std::pair<std::vector<Text>, std::vector<Text>> Heard() {
        std::vector<Text> logged;
        for (const auto& event : std::exchange(services.log.written, {}))
            if (event.type.find("SYNTHESIZE") != Text::npos)
                logged.push_back(event.type);
        return {std::exchange(services.speech.spoken, {}), logged};
    }
    using Expected = std::pair<std::vector<Text>, std::vector<Text>>;
    int Counted(Metric metric) { return services.metrics.counts[metric]; }
};

TEST_F(SpeechTest, WhatIsSpokenByKeyOrCommandIsLearnedBeforeLoggedAndCounted) {
    StartWriting("REGISTAR_EVENTOS 1\n");
    bool isLearned = false;
    services.speech.onSpeak = [&] {
        isLearned = Dictionary().GetSentence("bom dia").UserFrequency() > 0;
    };
    Type("  bom   dia");
    Press(kSpeakSentence);
    EXPECT_TRUE(isLearned) << "speech may take long, and the program may be left meanwhile";
    EXPECT_EQ(Heard(), (Expected{Texts("bom dia"), Texts("SYNTHESIZE_SENTENCE_bom dia")}));
    Type("  . ");
    Click("[Sintetizar-Fala-Frase]");
    EXPECT_EQ(Heard(),
              (Expected{Texts("bom dia."), Texts("COMMAND_EXECUTION_SYNTHESIZE_SENTENCE_bom dia.")}));
    Type("Tudo ");
    Press(kSpeakWord);
    EXPECT_EQ(Heard(), (Expected{Texts("Tudo"), Texts("SYNTHESIZE_WORD_Tudo")}));
    Click("[Sintetizar-Fala-Area-Trabalho]");
    EXPECT_EQ(Heard(),
              (Expected{Texts("bom dia. Tudo"), Texts("COMMAND_EXECUTION_SYNTHESIZE_ALL_bom dia. Tudo")}));
    Click("[Sintetizar-Descrição-Tecla]"_w);
    EXPECT_EQ(Heard().first, Texts("o que sou"));

    EXPECT_EQ(Counted(Metric::SpokenWord), 1);
    EXPECT_EQ(Counted(Metric::SpokenSentence), 2);
    EXPECT_EQ(Counted(Metric::SpokenText), 1);
    EXPECT_EQ(Counted(Metric::WordInSpeech), 2 + 2 + 1 + 3);
    EXPECT_EQ(Counted(Metric::SentenceInSpeech), 1 + 1 + 2);
}

TEST_F(SpeechTest, AfterAPictogramItsLabelIsSpokenUnlessAWordFollows) {
    StartWriting("REGISTAR_EVENTOS 1\n");
    auto& editor = *view->TextTargets().Internal();
    const auto position = editor.InsertImage("pao.bmp");
    ASSERT_TRUE(position);
    editor.SetImageLabels(*position, "pão fresco"_w, "[pão fresco]"_w);
    Type(", ");
    Press(kSpeakWord);
    EXPECT_EQ(Heard(), (Expected{Texts("pão fresco"_w), Texts("SYNTHESIZE_IMAGE_pão fresco"_w)}));
    Click("[Sintetizar-Fala-Palavra]");
    EXPECT_EQ(Heard().second, Texts("COMMAND_EXECUTION_SYNTHESIZE_IMAGE_pão fresco"_w));
    Type("bom");
    Click("[Sintetizar-Fala-Palavra]");
    EXPECT_EQ(Heard(), (Expected{Texts("bom"), Texts("COMMAND_EXECUTION_SYNTHESIZE_WORD_bom")}));
    EXPECT_EQ(Counted(Metric::SpokenPictogram), 2);
    EXPECT_EQ(Counted(Metric::WordInSpeech), 2 + 2 + 1);
}

TEST_F(SpeechTest, WithoutAVoiceNothingIsLoggedOrCountedButTheSentenceIsLearned) {
    StartWriting("REGISTAR_EVENTOS 1\nNOME_SINTETIZADOR_FALA Nenhum\nOUVIR_LETRAS 1\n");
    EXPECT_EQ(services.speech.voice, "");
    Type("bom dia");
    Press(kSpeakSentence);
    Click("[Sintetizar-Fala-Palavra]");
    EXPECT_EQ(Heard(), Expected());
    EXPECT_EQ(Counted(Metric::WordInSpeech), 0);
    EXPECT_EQ(Dictionary().GetSentence("bom dia").UserFrequency(), 1);
}

TEST_F(SpeechTest, VoicesFollowTheAccessOptionsFromTheStartAndFromTheDialog) {
    folder.Write("generico.acs",
                 "VELOCIDADE_FALA 30\nTOM_FALA -300\nVOLUME_PISTAS -50\nVOZ_PISTAS Voz;;;Baixa\n");
    StartWriting();
    EXPECT_EQ(services.speech.voice, "Joana");
    EXPECT_EQ(services.speech.manner, (SpeechManner{30, -100, std::nullopt}));
    EXPECT_EQ(services.cueSpeech.voice, "Voz Baixa");
    EXPECT_EQ(services.cueSpeech.manner, (SpeechManner{30, -100, -50}));

    bool accepted = true;
    optionDialogs.inProfileOptions = [&](const PersonalOptions& options,
                                         const ProfileOptionSources& sources) {
        EXPECT_EQ(&sources.Speech(), &speechEngine);
        options.access.Set(access_option::TOM_FALA, std::nullopt);
        options.access.Set(access_option::VOLUME_PISTAS, std::nullopt);
        options.access.Set(access_option::VOLUME_FALA, 80);
        options.access.SetCueVoice("");
        return accepted;
    };
    Choose(menu::ProfileOptions);
    EXPECT_EQ(services.speech.manner, (SpeechManner{30, std::nullopt, 80}));
    EXPECT_EQ(services.cueSpeech.voice, "Joana");
    EXPECT_EQ(services.cueSpeech.manner, services.speech.manner);
    EXPECT_EQ(folder.Read("generico.acs"), "VELOCIDADE_FALA 30\nVOLUME_FALA 80\n");

    accepted = false;
    journal.Take();
    Choose(menu::ProfileOptions);
    EXPECT_TRUE(journal.Has("voice Joana"))
        << "exceptions may have changed although the dialog was cancelled";
}

} // namespace
} // namespace ondrilo
