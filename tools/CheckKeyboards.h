#pragma once

#include "tools/CheckReport.h"

namespace ondrilo {

/// All on-screen keyboards of a data folder; `profiles` are the names that a key may change to.
void CheckKeyboards(const DataFolder& folder, const std::vector<Text>& profiles, CheckReport& report);

} // namespace ondrilo
