#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// Where the main window appears, and what it shows.
class CWindowPPage : public OptionsPage {
  public:
    explicit CWindowPPage(const OptionsPageContext& context);

  private:
    [[nodiscard]] QWidget* CreateCoordinates();
};

} // namespace ondrilo
