#pragma once

#include "platform/Desktop.h"
#include "platform/Dialogs.h"

namespace ondrilo {

/// The dialogs that the logic asks for, as top-most windows that give the focus back.
class QtDialogs : public Dialogs {
  public:
    explicit QtDialogs(Desktop& desktop) : desktop(desktop) {}
    [[nodiscard]] std::optional<Text> ChooseProfile(const std::vector<Text>& names) override;
    [[nodiscard]] std::optional<std::filesystem::path> ChooseTextFile() override;
    void SimulateWords(Simulator& simulator) override;

  private:
    Desktop& desktop;
};

} // namespace ondrilo
