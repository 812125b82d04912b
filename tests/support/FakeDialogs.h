#pragma once

#include "platform/Dialogs.h"

#include <functional>

namespace ondrilo {

/// Answers every dialog with what the test has set.
class FakeDialogs : public Dialogs {
  public:
    [[nodiscard]] std::optional<Text> ChooseProfile(const std::vector<Text>& names) override {
        offeredProfiles = names;
        return chosenProfile;
    }
    [[nodiscard]] std::optional<std::filesystem::path> ChooseTextFile() override { return chosenFile; }
    void SimulateWords(Simulator& simulator) override {
        if (inSimulator)
            inSimulator(simulator);
    }

    std::optional<Text> chosenProfile;
    std::vector<Text> offeredProfiles;
    std::optional<std::filesystem::path> chosenFile;
    std::function<void(Simulator&)> inSimulator; ///< what the person does in the window
};

} // namespace ondrilo
