#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// Ways of reaching the keys that are kept beside the options of the profile.
class CAccessPPage : public OptionsPage {
  public:
    explicit CAccessPPage(const OptionsPageContext& context);
};

} // namespace ondrilo
