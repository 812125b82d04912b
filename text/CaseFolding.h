#pragma once

#include "text/Text.h"

namespace ondrilo {

/// Case folding of Windows-1252: every capital with a lower-case partner in the code page, accented ones
/// too; accents stay. Bytes without a partner are returned as they are.
[[nodiscard]] char MakeLower(char c);
[[nodiscard]] char MakeUpper(char c);
[[nodiscard]] Text MakeLower(TextView text);
[[nodiscard]] Text MakeUpper(TextView text);

} // namespace ondrilo
