#pragma once

#include "logging/CMetrics.h"
#include "tools/LogFile.h"

namespace ondrilo {

/// What the events of a log show of its metrics.
class LogCounts {
  public:
    explicit LogCounts(const LogFile& log);

    /// By name, the metrics as far as the events show them.
    [[nodiscard]] const std::vector<LogMetric>& Metrics() const { return metrics; }

    /// Columns of which nobody knows what they hold.
    bool hasUndecided = false;
    /// Each press of a key or of a button stands in the log, from its beginning to its end.
    bool hasRawInput = false;
    bool hasPictograms = false;
    /// A prediction of a further page was chosen, whose place in the whole list no event tells.
    bool hasFurtherPage = false;

  private:
    class Counter;
    std::vector<LogMetric> metrics;
};

} // namespace ondrilo
