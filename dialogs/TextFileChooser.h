#pragma once

#include "platform/Desktop.h"

#include <filesystem>
#include <optional>

class QWidget;

namespace ondrilo {

/// Lets the person choose a text file that exists, beginning in their documents; nothing on Cancel.
[[nodiscard]] std::optional<std::filesystem::path> AskForTextFile(Desktop& desktop,
                                                                  QWidget* parent = nullptr);

} // namespace ondrilo
