#pragma once

#include "platform/Desktop.h"
#include "platform/Dialogs.h"

namespace ondrilo {

/// Top-most boxes with the title "Ondrilo", object name "messageBox" and buttons "okButton", "yesButton",
/// "noButton" and "cancelButton". Escape is Cancel, else No, else OK.
class QtMessageBoxes : public MessageBoxes {
  public:
    explicit QtMessageBoxes(Desktop& desktop) : desktop(desktop) {}
    void Show(TextView text) override;
    [[nodiscard]] Answer AskYesNo(TextView question, Answer preselected = Answer::Yes) override;
    [[nodiscard]] Answer AskYesNoCancel(TextView question) override;

  private:
    Desktop& desktop;
};

} // namespace ondrilo
