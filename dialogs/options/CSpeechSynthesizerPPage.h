#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// The voice, and what it says when.
class CSpeechSynthesizerPPage : public OptionsPage {
  public:
    explicit CSpeechSynthesizerPPage(const OptionsPageContext& context);

  private:
    [[nodiscard]] QWidget* CreateButtons();
};

} // namespace ondrilo
