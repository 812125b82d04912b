#include "logging/CLog.h"
#include "logging/CMetrics.h"
#include "tests/app/RunningSystem.h"
#include "text/LineReader.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

/// The running system with a real log and real metrics.
struct LogTest : RunningSystem {
    void StartLogged(TextView options) {
        SetOptions(Text("REGISTAR_EVENTOS 1\n").append(options));
        const auto all = services.All();
        view = std::make_unique<CTessivorView>(
            Surroundings(),
            SessionServices{log, metrics, all.speech, all.cueSpeech, all.agent, all.gps, all.bluetooth,
                            all.context, all.cooperation, all.userRecord, all.pictograms});
        view->OnInitialUpdate();
        Tick(6);
        News();
    }
    /// What was written since the last look, without the time.
    std::vector<Text> News() {
        const auto bytes = folder.Read("generico Thu Jan  1 00-00-00 1970.log");
        LineReader reader(TextView(bytes).substr(std::exchange(told, bytes.size())), TextView::npos);
        std::vector<Text> lines;
        while (const auto line = reader.Next())
            lines.emplace_back(line->starts_with("00:00:00.000 ") ? line->substr(13) : *line);
        return lines;
    }
    /// Without characters, and without the keys after the first of several that the system itself typed.
    [[nodiscard]] static std::vector<Text> Story(std::vector<Text> lines) {
        std::erase_if(lines, [](const Text& line) { return line.find(" CHAR ") != Text::npos; });
        bool typed = false;
        std::erase_if(lines, [&typed](const Text& line) {
            return std::exchange(typed, line.find(" AUTO_KEY ") != Text::npos) && typed;
        });
        return lines;
    }

    DataFolder data{folder.Path()};
    LogViewer viewer;
    CLog log{data, clock, boxes, viewer};
    CMetrics metrics;
    std::size_t told = 0;
};

TEST_F(LogTest, TellsAShortStoryLineByLineAndInNumbers) {
    folder.Write("generico.abr", "bd bom dia\n");
    StartLogged("");
    clock.now += Milliseconds(5'000);
    Type("t");
    Type("u");
    Pause();
    EXPECT_EQ(News(), Texts(R"("" KEY_DOWN_84 KEY  -  - Casa "")", R"("t" CHAR_t CHAR  -  - Casa "")",
                            R"("" KEY_DOWN_85 KEY  -  - Casa "t")", R"("u" CHAR_u CHAR  -  - Casa "t")"));
    Press(vk::F1);
    EXPECT_EQ(Story(News()),
              Texts(R"("" KEY_DOWN_112 PREDICTED_WORD_SELECTION_0_0_tudo 0.0.0 145.170 Casa "tu")",
                    R"("" KEY_DOWN_68 AUTO_KEY  -  - Casa "tudo ")",
                    R"("" NEW_WORD WORD_tudo  -  - Casa "tudo ")"));
    Click("á"_w);
    Click("Space");
    EXPECT_EQ(Story(News()),
              Texts(R"("" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION_á 1.0.2 426.245 Casa "tudo ")"_w,
                    R"("" KEY_DOWN_186 AUTO_KEY  -  - Casa "tudo á")"_w,
                    R"("" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION_Space 1.0.4 871.245 Casa "tudo á")"_w,
                    R"("" KEY_DOWN_32 AUTO_KEY  -  - Casa "tudo á ")"_w,
                    R"("" NEW_WORD WORD_á  -  - Casa "tudo á ")"_w));
    Type("b");
    Type("d");
    Press(vk::Tab);
    Press(vk::Tab);
    EXPECT_THAT(News(), testing::IsSupersetOf(Texts(
                            R"("" KEY_DOWN_9 ABBREVIATION_SELECTION_bd_bom_dia  -  - Casa "tudo á bd")"_w,
                            R"("" KEY_DOWN_9 ABBREVIATION_NOT_FOUND_  -  - Casa "tudo á bom dia ")"_w)));
    Click(".");
    Click("Space");
    EXPECT_EQ(
        Story(News()),
        Texts(R"("" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION_. 1.0.3 593.245 Casa "tudo á bom dia ")"_w,
              R"("" KEY_DOWN_190 AUTO_KEY  -  - Casa "tudo á bom dia .")"_w,
              R"("" NEW_SENTENCE SENTENCE_tudo_á_bom_dia_.  -  - Casa "tudo á bom dia .")"_w,
              R"("" LEFT_MOUSE_DOWN_KEY TEXT_KEY_SELECTION_Space 1.0.4 871.245 Casa "tudo á bom dia .")"_w,
              R"("" KEY_DOWN_32 AUTO_KEY  -  - Casa "")"));
    Press(vk::F1 + 10);
    Press(vk::F1 + 11);
    Click("[Limpar-Area-Trabalho]");
    Click("outro.tec");
    EXPECT_EQ(
        Story(News()),
        Texts(
            R"("" KEY_DOWN_122 SYNTHESIZE_WORD_dia  -  - Casa "")",
            R"("" KEY_DOWN_123 SYNTHESIZE_SENTENCE_tudo_á_bom_dia.  -  - Casa "")"_w,
            R"("" LEFT_MOUSE_DOWN_KEY COMMAND_EXECUTION_CLEAR_INTERNAL_WORD_PROCESSOR 2.0.3 507.295 Casa "")",
            R"("" LEFT_MOUSE_DOWN_KEY ON_SCREEN_KEYBOARD_CALL_outro 2.0.2 359.295 Casa "")"));

    clock.now += Milliseconds(7'000);
    Choose(menu::Metrics);
    EXPECT_THAT(
        dialogs.shownMetrics,
        testing::IsSupersetOf(Texts(
            "Tempo_Total_Escrita 12", "Tempo_Efectivo_Escrita 7", "Numero_Teclas_Pressionadas 9",
            "Numero_Teclas_Sistema 16", "Numero_Teclas_Ecra_Pressionadas 6", "Numero_Caracteres_Escritos 19",
            "Numero_Palavras_Escritas 4", "Numero_Frases_Escritas 1", "Numero_Caracteres_Finais 17",
            "Numero_Palavras_Finais 4", "Numero_Cliques 6",
            "Numero_Alteracoes_Teclado_Ecran_Atraves_Teclado_Ecran 1", "Numero_Abreviaturas_Expandidas 1",
            "Numero_Palavras_Completadas 1", "Posicao_Media_Palavras_Lista 0.000000",
            "Numero_Medio_Caracteres_Completar_Palavras 2.000000", "Palavras_Sintetizadas 1",
            "Total_Palavras_Sintetizadas 5", "Total_Frases_Sintetizadas 1")));
    Type("fim");
    frame.listener->OnDestroy();
    const auto end = News();
    EXPECT_THAT(end, testing::Contains("$$$ End Body"));
    EXPECT_EQ(std::vector<Text>(end.end() - 2, end.end()),
              Texts("Linha_Texto_Final tudo á bom dia . "_w, "Linha_Texto_Final fim"));
}

TEST_F(LogTest, CountsOnlyWhileItIsOpenAndGoesOnInANewFile) {
    StartLogged("TECLA_MANIPULO1 F5\nLATENCIA_INTERRUPTORES_VARRIMENTO 0\n");
    const auto shown = [this](TextView line) {
        Choose(menu::Metrics);
        return std::ranges::count(dialogs.shownMetrics, line) == 1;
    };
    const auto pressSwitch = [this] {
        keys.KeyDown(vk::F1 + 4);
        Drain();
        Tick(2);
        keys.KeyUp(vk::F1 + 4);
        Drain();
    };
    pressSwitch();
    EXPECT_TRUE(shown("Numero_Activacoes_Manipulos 1"));
    clock.local.second = 1;
    boxes.answers = {Answer::Yes};
    Choose(menu::RestartMetrics);
    EXPECT_TRUE(shown("Numero_Activacoes_Manipulos 0"));
    EXPECT_EQ(DataFolder(folder.Path()).Files(".log").size(), 2U);
    Type("o");
    const auto key = KeyOf("[Trocar-Modo-Logging]");
    EXPECT_TRUE(Key(key).IsLit());
    EXPECT_TRUE(frame.title.ends_with("(Logging Ligado)"));
    Click(key);
    EXPECT_FALSE(Key(key).IsLit());
    EXPECT_TRUE(frame.title.ends_with("(Logging Desligado)"));
    EXPECT_TRUE(shown("Numero_Teclas_Pressionadas 0"));
    Type("o");
    pressSwitch();
    EXPECT_TRUE(shown("Numero_Teclas_Pressionadas 0"));
    EXPECT_TRUE(shown("Numero_Activacoes_Manipulos 0"));
    Click(key);
    EXPECT_TRUE(Key(key).IsLit());
    EXPECT_TRUE(log.IsOpen());
}

} // namespace
} // namespace ondrilo
