#pragma once

#include "tools/LogFile.h"

#include <chrono>
#include <cstdint>

namespace ondrilo {

using LogDay = std::chrono::sys_days;

/// What the name of a log tells: "ana Sat Nov 14 18-51-06 2026".
struct LogName {
    Text profile;
    LogDay day;
};
/// Nothing if the name, without folder and ending, is no log's.
[[nodiscard]] std::optional<LogName> ReadLogName(TextView stem);
/// "2026-11-14"; nothing if that is no date.
[[nodiscard]] std::optional<LogDay> ReadLogDay(TextView date);

/// The moment of each record, "2026-11-14T18:51:06.123": local time, whose distance from that of Greenwich no
/// log tells. A time of day that lies more than an hour before the one above it is of the next day; less is a
/// clock that was set back. An undecided record has the moment of the one above it.
[[nodiscard]] std::vector<std::string> MomentsOf(const std::vector<LogRecord>& records, LogDay firstDay);
/// Whole seconds from the first record to the last, by the same rule.
[[nodiscard]] std::int64_t SecondsOf(const std::vector<LogRecord>& records);

} // namespace ondrilo
