#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// The look of keys and window, with an example that follows each choice.
class CColorsPPage : public OptionsPage {
  public:
    explicit CColorsPPage(const OptionsPageContext& context);

  private:
    void AddLetters();
    void AddKeyFill();
    void AddWindowFill();
    [[nodiscard]] QWidget* CreatePictureChooser();
    void ChoosePicture(QLineEdit& line);
};

} // namespace ondrilo
