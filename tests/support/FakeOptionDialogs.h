#pragma once

#include "profiles/OptionDialogs.h"

#include <functional>

namespace ondrilo {

/// Lets a test act as the person in the dialogs of options; without one they are cancelled.
class FakeOptionDialogs : public OptionDialogs {
  public:
    [[nodiscard]] bool EditProfileOptions(const PersonalOptions& options,
                                          const ProfileOptionSources& sources) override {
        return inProfileOptions && inProfileOptions(options, sources);
    }
    [[nodiscard]] bool EditSystemOptions(CSystemOptions& options, SystemOptionSources& sources) override {
        return inSystemOptions && inSystemOptions(options, sources);
    }

    std::function<bool(const PersonalOptions&, const ProfileOptionSources&)> inProfileOptions;
    std::function<bool(CSystemOptions&, SystemOptionSources&)> inSystemOptions;
};

} // namespace ondrilo
