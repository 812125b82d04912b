#include "dialogs/options/CAccessPPage.h"

namespace ondrilo {

CAccessPPage::CAccessPPage(const OptionsPageContext& context)
    : OptionsPage(context, "accessPage", tr("Acesso")) {

    AddGroup(tr("Acesso às Teclas")).Add(access_option::TEMPO_PERMANENCIA);
}

} // namespace ondrilo
