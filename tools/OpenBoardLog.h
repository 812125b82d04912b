#pragma once

#include "tools/LogMoments.h"

namespace ondrilo {

/// The log as an Open Board Log: what was chosen on the on-screen keyboard as buttons, ended sentences as
/// utterances, everything else as actions, undecided lines as notes. What that form has no place for stands
/// in members whose names begin with "ext_ondrilo_". Nothing is made anonymous.
[[nodiscard]] std::string LogAsOpenBoardLog(const LogFile& log, TextView session, TextView profile,
                                            LogDay firstDay);

} // namespace ondrilo
