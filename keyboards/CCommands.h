#pragma once

#include "text/Text.h"

#include <functional>
#include <vector>

namespace ondrilo {

/// A command that a key can run, written "[name argument]" in its output.
struct CommandRow {
    TextView name;
    int arguments;
    TextView event; ///< logged when it runs
};

/// The table of commands.
class CCommands {
  public:
    using ProfileNames = std::function<std::vector<Text>()>;

    /// Tells where the names of the profiles come from; null while there are none.
    void SetProfileNames(ProfileNames names) { profileNames = std::move(names); }

    [[nodiscard]] static std::vector<Text> getNames();
    [[nodiscard]] static int getArgumentCount(TextView command);
    /// The values that an argument may take; empty where any does, or none.
    [[nodiscard]] std::vector<Text> getArgumentChoices(TextView command, int index) const;
    /// The row of a command, compared exactly; null if there is none.
    [[nodiscard]] static const CommandRow* Find(TextView command);

  private:
    ProfileNames profileNames;
};

} // namespace ondrilo
