#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// The character beside the window.
class CAgentPPage : public OptionsPage {
  public:
    explicit CAgentPPage(const OptionsPageContext& context);
};

} // namespace ondrilo
