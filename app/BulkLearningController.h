#pragma once

#include "app/Environment.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// The clipboard's text as a file, "ClipboardFile.tmp" in the data folder; nothing if it is empty, has 10,000
/// characters or more, or cannot be written, which the status line tells.
[[nodiscard]] std::optional<std::filesystem::path> CopyClipboardToFile(const Environment& environment);

/// Teaches the active profile's dictionary the words and sentences of a whole text, on the person's command,
/// whether the profile learns from writing or not.
class BulkLearningController {
  public:
    BulkLearningController(const Environment& environment, CUserProfileSet& profiles);

    /// Asks for the file.
    void LearnFromFile();
    void LearnFromClipboard();

  private:
    void Learn(const std::filesystem::path& text);

    Environment environment;
    CUserProfileSet& profiles;
};

} // namespace ondrilo
