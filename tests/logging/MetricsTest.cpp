#include "logging/CMetrics.h"

#include <gmock/gmock.h>

namespace ondrilo {
namespace {

using testing::Contains;
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
    CMetrics metrics;
    metrics.Count(Metric::KeyPress, 4);
    metrics.Completed({});
    metrics.Reset();
    MetricsFacts facts{.finalTexts = {""}, .hasEditor = true};
    EXPECT_THAT(metrics.Lines(facts),
                IsSupersetOf({"Numero_Teclas_Pressionadas 0", "Numero_Teclas_Texto_Teclado_Qwerty 0",
                              "Teclas_Poupadas_Comparacao_Escrita_Teclado_Qwerty -",
                              "Posicao_Media_Palavras_Lista -", "Posicao_Media_Simbolos_Simples_Lista -"}));
    facts.hasEditor = false;
    EXPECT_THAT(metrics.Lines(facts), Not(Contains(HasSubstr("Qwerty"))));
}

TEST(Metrics, EachSelectionCountsForItsOwnKindAndSource) {
    CMetrics metrics;
    metrics.Completed({Kind::Word, Source::TextList, 4, 2});
    metrics.Completed({Kind::Word, Source::TextList, 1, 0});
    metrics.Completed({Kind::WordSequence, Source::PictogramSentences, 7, 5});
    metrics.Completed({Kind::Sentence, Source::Pictograms, 2, 3});
    metrics.Count(Metric::SelectedPictogram, 6);
    metrics.Count(Metric::WrittenPictogramSentence, 8);
    metrics.Count(Metric::PredictedPictogramSentence, 2);
    metrics.Count(Metric::PredictedPictogramSentencePosition, 9);
    EXPECT_THAT(
        metrics.Lines({}),
        IsSupersetOf(
            {"Numero_Palavras_Completadas 2", "Posicao_Media_Palavras_Lista 2.500000",
             "Numero_Medio_Caracteres_Completar_Palavras 1.000000",
             "Numero_Palavras_Completadas_A_Partir_Simbolos_Simples 0",
             "Numero_Sequencias_Palavras_Completadas_A_Partir_Simbolos_Compostos 1",
             "Posicao_Media_Simbolos_Compostos_Com_Sequencia_Palavra_Lista 7.000000",
             "Numero_Medio_Caracteres_Completar_Sequencia_Palavras_A_Partir_Simbolos_Compostos 5.000000",
             "Posicao_Media_Simbolos_Simples_Com_Frase_Lista 2.000000",
             "Numero_Simbolos_Simples_Seleccionados 6", "Numero_Simbolos_Compostos_Escritos 8",
             "Posicao_Media_Simbolos_Compostos_Lista 4.500000"}));
}

} // namespace
} // namespace ondrilo
