#include "logging/CMetrics.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

using Kind = Completion::Kind;
using Source = Completion::Source;

TEST(Metrics, SavingsCompareWithTheKeysThatTheFinalTextsWouldHaveCost) {
    CMetrics metrics;
    metrics.Count(Metric::KeyPress, 4);
    metrics.Count(Metric::SystemKey, 7);
    metrics.Count(Metric::ScreenKey, 24);
    // 7 + 9 keys: Shift and three letters, blank, "á" as two; six letters, blank and "?" as two.
    const MetricsFacts facts{90, 31, {"Bom \xE1", "[casa] eu?"}, true, 3};
    EXPECT_THAT(
        metrics.Lines(facts),
        IsSupersetOf({"Tempo_Total_Escrita 90", "Tempo_Efectivo_Escrita 31", "Numero_Teclas_Pressionadas 4",
                      "Numero_Teclas_Sistema 7", "Numero_Total_Teclas 11", "Numero_Activacoes_Manipulos 3",
                      "Numero_Teclas_Texto_Teclado_Qwerty 16",
                      "Teclas_Poupadas_Comparacao_Escrita_Teclado_Qwerty 75.000000",
                      "Teclas_Ecra_Poupadas_Comparacao_Escrita_Teclado_Qwerty -50.000000",
                      "Activacoes_Manipulo_Poupadas_Comparacao_Escrita_Teclado_Qwerty 81.250000",
                      "Numero_Caracteres_Finais 13", "Numero_Palavras_Finais 4", "Numero_Frases_Finais 1",
                      "Numero_Simbolos_Finais 1"}));
}

TEST(Metrics, WhereThereIsNothingToCompareOrToMeanNoNumberIsMadeUp) {
    const CMetrics metrics;
    MetricsFacts facts;
    facts.finalTexts = {"a"};
    const auto lines = metrics.Lines(facts);
    EXPECT_EQ(lines.size(), 68U);
    EXPECT_THAT(lines, Not(Contains(HasSubstr("Qwerty"))));
    EXPECT_THAT(lines,
                IsSupersetOf({"Posicao_Media_Palavras_Lista -", "Posicao_Media_Simbolos_Simples_Lista -",
                              "Posicao_Media_Simbolos_Compostos_Lista -"}));
    facts = {.finalTexts = {""}, .hasEditor = true};
    EXPECT_THAT(metrics.Lines(facts),
                IsSupersetOf({"Numero_Teclas_Texto_Teclado_Qwerty 0",
                              "Teclas_Ecra_Poupadas_Comparacao_Escrita_Teclado_Qwerty -"}));
}

TEST(Metrics, EachCompletionCountsForItsOwnKindAndSource) {
    CMetrics metrics;
    metrics.Completed({Kind::Word, Source::TextList, 4, 2});
    metrics.Completed({Kind::Word, Source::TextList, 1, 0});
    metrics.Completed({Kind::WordSequence, Source::PictogramSentences, 7, 5});
    metrics.Completed({Kind::Sentence, Source::Pictograms, 2, 3});
    const auto lines = metrics.Lines({});
    EXPECT_THAT(std::vector<Text>(lines.begin() + 30, lines.begin() + 33),
                ElementsAre("Numero_Palavras_Completadas 2", "Posicao_Media_Palavras_Lista 2.500000",
                            "Numero_Medio_Caracteres_Completar_Palavras 1.000000"));
    EXPECT_THAT(
        lines,
        IsSupersetOf(
            {"Numero_Palavras_Completadas_A_Partir_Simbolos_Simples 0",
             "Numero_Sequencias_Palavras_Completadas_A_Partir_Simbolos_Compostos 1",
             "Posicao_Media_Simbolos_Compostos_Com_Sequencia_Palavra_Lista 7.000000",
             "Numero_Medio_Caracteres_Completar_Sequencia_Palavras_A_Partir_Simbolos_Compostos 5.000000",
             "Posicao_Media_Simbolos_Simples_Com_Frase_Lista 2.000000",
             "Numero_Medio_Caracteres_Completar_Frases_A_Partir_Simbolos_Simples 3.000000"}));
}

TEST(Metrics, WhatIsCountedApartIsNotMixedUp) {
    CMetrics metrics;
    for (std::size_t i = 0; i < kMetricCount; ++i)
        metrics.Count(static_cast<Metric>(i), 1 << (i % 30));
    const auto count = [](Metric metric) {
        return std::to_string(1 << (static_cast<int>(metric) % 30));
    };
    const std::pair<TextView, Metric> rows[] = {
        {"Numero_Simbolos_Simples_Seleccionados ", Metric::SelectedPictogram},
        {"Numero_Simbolos_Compostos_Escritos ", Metric::WrittenPictogramSentence},
        {"Numero_Alteracoes_Teclado_Ecran_Atraves_Menu ", Metric::KeyboardByMenu},
        {"Numero_Sugestoes_Simbolos_Multiplos ", Metric::PictogramSentenceHint},
        {"Numero_Caracteres_Simbolos_Apagados ", Metric::Correction},
        {"Simbolos_Sintetizados ", Metric::SpokenPictogram},
        {"Total_Frases_Sintetizadas ", Metric::SentenceInSpeech},
        {"Texto_Area_Trabalho_Sintetizado ", Metric::SpokenText}};
    const auto lines = metrics.Lines({});
    for (const auto& [name, metric] : rows)
        EXPECT_THAT(lines, Contains(Text(name) + count(metric)));
    EXPECT_THAT(lines, Contains("Posicao_Media_Simbolos_Simples_Lista 2.000000"));
    metrics.Reset();
    EXPECT_EQ(metrics.Lines({}), CMetrics().Lines({}));
}

} // namespace
} // namespace ondrilo
