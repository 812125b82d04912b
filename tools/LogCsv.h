#pragma once

#include "tools/LogFile.h"

namespace ondrilo {

/// The events as comma-separated values in UTF-8, with a row of names. The last column holds the lines that
/// could not be decided.
[[nodiscard]] std::string LogAsCsv(const LogFile& log);

} // namespace ondrilo
