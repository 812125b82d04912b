#pragma once

#include "platform/Clock.h"

#include <filesystem>
#include <optional>

namespace ondrilo {

/// How long a WAV file plays; nothing for a file that is missing or no WAV.
[[nodiscard]] std::optional<Milliseconds> LengthOfWave(const std::filesystem::path& file);

} // namespace ondrilo
