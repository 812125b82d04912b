#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// The place and the Bluetooth tags at which the profile is chosen.
class CLocationAwarePPage : public OptionsPage {
  public:
    explicit CLocationAwarePPage(const OptionsPageContext& context);

  private:
    void ClearTags();

    QLineEdit* tagList = nullptr;
};

} // namespace ondrilo
