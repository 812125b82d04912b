#pragma once

#include "platform/Desktop.h"

#include <QString>

#include <filesystem>
#include <optional>

/// Windows in which the person chooses something on disk that exists, beginning in their documents; nothing
/// on Cancel. They are never those of the desktop, which nobody here could put in front or give the focus to.
namespace ondrilo {

/// `filter` as "Imagens (*.bmp);;Todos os ficheiros (*)".
[[nodiscard]] std::optional<std::filesystem::path> AskForFile(Desktop& desktop, const QString& title,
                                                              const QString& filter);
[[nodiscard]] std::optional<std::filesystem::path> AskForTextFile(Desktop& desktop);
[[nodiscard]] std::optional<std::filesystem::path> AskForFolder(Desktop& desktop, const QString& title);

} // namespace ondrilo
