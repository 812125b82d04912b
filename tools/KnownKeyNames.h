#pragma once

#include "text/Text.h"

namespace ondrilo {

/// A name of the standard key table: "BkSp", "Num5", "a".
[[nodiscard]] bool IsKnownKeyName(TextView name);

} // namespace ondrilo
