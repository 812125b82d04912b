#include "dialogs/options/CAccessPPage.h"

namespace ondrilo {

CAccessPPage::CAccessPPage(const OptionsPageContext& context)
    : OptionsPage(context, "accessPage", tr("Acesso")) {

    auto& access = AddGroup(tr("Acesso às Teclas"));
    for (std::size_t i = 0; i < std::size(kAccessOptions); ++i)
        access.Add(AccessOption{i});
}

} // namespace ondrilo
