#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// What is logged of the work, and when the person counts as idle.
class CEventLogPPage : public OptionsPage {
  public:
    explicit CEventLogPPage(const OptionsPageContext& context);
};

} // namespace ondrilo
