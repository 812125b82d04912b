#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// The times of the week at which the profile is chosen.
class CTimeAwarePPage : public OptionsPage {
  public:
    explicit CTimeAwarePPage(const OptionsPageContext& context);
};

} // namespace ondrilo
