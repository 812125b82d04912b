#include "dialogs/options/CScanningPPage.h"

namespace ondrilo {

CScanningPPage::CScanningPPage(const OptionsPageContext& context)
    : OptionsPage(context, "scanningPage", tr("Varrimento")) {

    auto& method = AddGroup(tr("Método e Manípulos"));
    method.AddChoice(option::METODO_VARRIMENTO, {"Nenhum", "Regular", "Inverso", "Passo-a-Passo"});
    method.AddChoice(option::TECLA_MANIPULO1, context.sources.KeyNames());
    method.AddChoice(option::TECLA_MANIPULO2, context.sources.KeyNames());

    auto& times = AddGroup(tr("Tempos"));
    times.Add(option::VELOCIDADE_VARRIMENTO, tr(" ms"));
    times.Add(option::LATENCIA_INTERRUPTORES_VARRIMENTO, tr(" ms"));
    times.Add(option::NUMERO_MAXIMO_CICLOS_VARRIMENTO);

    auto& cues = AddGroup(tr("Sinais"));
    cues.Add(option::PISTA_SONORA_BEEP_VARRIMENTO);
    cues.Add(option::PISTA_SINTETIZADA_VARRIMENTO);
}

} // namespace ondrilo
