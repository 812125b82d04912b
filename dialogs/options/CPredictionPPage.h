#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// What is predicted, how much of it and when, and how it is completed.
class CPredictionPPage : public OptionsPage {
  public:
    explicit CPredictionPPage(const OptionsPageContext& context);
};

} // namespace ondrilo
