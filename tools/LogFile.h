#pragma once

#include "text/Text.h"

#include <optional>
#include <vector>

namespace ondrilo {

/// A line of an event log's body; a column without content is empty.
struct LogRecord {
    Text time; ///< "18:51:06.123", local
    Text output, event, type, element, center, page, context;
    /// The whole line, where it could not be told where its texts begin and end; the columns are then empty.
    Text undecided;
    bool operator==(const LogRecord&) const = default;
};

struct LogMetric {
    Text name, value;
    bool operator==(const LogMetric&) const = default;
};

/// What an event log holds. The texts in it may hold line ends.
struct LogFile {
    std::vector<LogRecord> records;
    bool hasEnd = false; ///< without one the program was cut off
    std::vector<LogMetric> metrics;
    std::vector<Text> finalTexts;
};

/// Reads one event. Quotes inside its two texts are not escaped: where more than one quote could end the
/// first text, and where none could, nothing is returned.
[[nodiscard]] std::optional<LogRecord> ReadLogLine(TextView line);
/// Nothing if the bytes do not begin as an event log does.
[[nodiscard]] std::optional<LogFile> ReadLog(TextView bytes);

} // namespace ondrilo
