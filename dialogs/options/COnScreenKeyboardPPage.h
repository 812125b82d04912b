#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// Which keyboard opens, the sizes and distances of its keys, and the text editor above it.
class COnScreenKeyboardPPage : public OptionsPage {
  public:
    explicit COnScreenKeyboardPPage(const OptionsPageContext& context);
};

} // namespace ondrilo
