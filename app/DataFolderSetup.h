#pragma once

#include "app/UserFolders.h"
#include "text/Text.h"

namespace ondrilo {

/// Prepares the person's data folder; the sentence to show if the program is not installed, otherwise empty.
/// Delivered files are copied only when this call made both folders: where the outer one stands already,
/// nothing is copied, and the inner one is not even made.
[[nodiscard]] Text PrepareDataFolder(const UserFolders& folders);

} // namespace ondrilo
