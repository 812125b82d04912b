#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// How the keys are reached by one or two switches.
class CScanningPPage : public OptionsPage {
  public:
    explicit CScanningPPage(const OptionsPageContext& context);
};

} // namespace ondrilo
