#include "dialogs/options/CAgentPPage.h"

namespace ondrilo {

CAgentPPage::CAgentPPage(const OptionsPageContext& context)
    : OptionsPage(context, "agentPage", tr("Agente")) {

    auto& agent = AddGroup(tr("Personagem"));
    agent.Add(option::AGENTE_ACTIVO);
    agent.AddChoice(option::NOME_AGENTE, {"Ondrilo", "Merlin", "Papagaio", "Robot"});
}

} // namespace ondrilo
