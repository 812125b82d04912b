#include "dialogs/options/CPredictionPPage.h"

namespace ondrilo {

CPredictionPPage::CPredictionPPage(const OptionsPageContext& context)
    : OptionsPage(context, "predictionPage", tr("Predição")) {

    auto& words = AddGroup(tr("Palavras"));
    words.Add(option::NUMERO_MAXIMO_PALAVRAS_PREDITAS);
    words.Add(option::NUMERO_MAXIMO_LETRAS_PALAVRAS_PREDITAS);
    words.Add(option::PALAVRAS_PREDITAS_EM_MAIUSCULAS);

    auto& sentences = AddGroup(tr("Frases"));
    sentences.Add(option::NUMERO_MAXIMO_FRASES_PREDITAS);
    sentences.Add(option::NUMERO_MAXIMO_LETRAS_FRASES_PREDITAS);

    auto& pictograms = AddGroup(tr("Pictogramas"));
    pictograms.Add(option::NUMERO_MAXIMO_IMAGENS_PREDITAS);
    pictograms.Add(option::NUMERO_MAXIMO_FRASES_IMAGENS_PREDITAS);
    pictograms.Add(option::NUMERO_MAXIMO_IMAGENS_FRASES_PREDITAS);
    pictograms.Add(option::COLOCAR_ETIQUETA_FRASES_TRADUZIDAS_SIMBOLOS);
    pictograms.Add(option::SAIDA_TEXTO_FRASES_TRADUZIDAS_SIMBOLOS);

    auto& use = AddGroup(tr("Utilização"));
    use.Add(option::TEMPO_DE_PREDICAO);
    use.Add(option::VER_ANTES_COMPLETAR);
    use.AddRadios(option::TECLAS_COMPLETAR, tr("Teclas para Completar:"),
                  {{112, tr("F1, .., F10")}, {48, tr("0, ..,9 ")}});
    use.AddChoice(option::TECLA_EXPANSAO_ABREVIATURAS, context.sources.KeyNames());

    auto& excluded = AddGroup(tr("Exclusões"));
    excluded.Add(option::LETRAS_NAO_PRETENDIDAS);
    excluded.Add(option::SEQUENCIAS_LETRAS_NAO_PRETENDIDAS);
}

} // namespace ondrilo
