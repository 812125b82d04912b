#pragma once

#include "dialogs/BaseDialog.h"
#include "profiles/OptionDialogs.h"

namespace ondrilo {

/// The dialogs of options as windows.
class QtOptionDialogs : public OptionDialogs {
  public:
    explicit QtOptionDialogs(const DialogHost& host) : host(host) {}
    [[nodiscard]] bool EditProfileOptions(const PersonalOptions& options,
                                          const ProfileOptionSources& sources) override;
    [[nodiscard]] bool EditSystemOptions(CSystemOptions& options, SystemOptionSources& sources) override;

  private:
    DialogHost host;
};

} // namespace ondrilo
