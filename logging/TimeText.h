#pragma once

#include "platform/Clock.h"
#include "text/Text.h"

namespace ondrilo {

/// A moment in the 24 characters of the C library, whatever the language of the desktop:
/// "Sat Nov 14 18:51:06 2026"; a day below 10 has a blank before it.
[[nodiscard]] Text TimeText(const LocalTime& time);
/// The same with "-" for each ":", as it stands in names of files.
[[nodiscard]] Text TimeForFileName(const LocalTime& time);

} // namespace ondrilo
