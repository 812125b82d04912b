#include "dialogs/options/CEventLogPPage.h"

namespace ondrilo {

CEventLogPPage::CEventLogPPage(const OptionsPageContext& context)
    : OptionsPage(context, "eventLogPage", tr("Registo de Eventos")) {

    auto& log = AddGroup(tr("Registo"));
    log.Add(option::REGISTAR_EVENTOS);
    log.Add(option::REGISTA_EVENTOS_CONTROLO);
    log.Add(option::SOM_INICIAL_REGISTO_EVENTOS);

    auto& metrics = AddGroup(tr("Métricas"));
    metrics.Add(option::TEMPO_INACTIVIDADE_COMUNICACAO, tr(" segundos"));
}

} // namespace ondrilo
