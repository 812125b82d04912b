#pragma once

#include "platform/Dialogs.h"

namespace ondrilo {

/// Answers every dialog with what the test has set.
class FakeDialogs : public Dialogs {
  public:
    [[nodiscard]] std::optional<Text> ChooseProfile(const std::vector<Text>& names) override {
        offeredProfiles = names;
        return chosenProfile;
    }

    std::optional<Text> chosenProfile;
    std::vector<Text> offeredProfiles;
};

} // namespace ondrilo
