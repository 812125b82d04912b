#pragma once

#include "tools/CheckReport.h"

namespace ondrilo {

/// Profiles (".cfg" and ".acs"), the options of the installation and the list of profiles.
void CheckOptions(const DataFolder& folder, const std::vector<Text>& profiles, CheckReport& report);

} // namespace ondrilo
