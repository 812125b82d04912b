#pragma once

#include "tools/LogFile.h"

namespace ondrilo {

/// A metric counted again from the events and the final texts of a log.
struct ReplayedMetric {
    enum class Verdict {
        Equal,
        AtLeast, ///< what the events show is less than was counted, as it may be: they do not show all
        Differs,
        Unknown, ///< the events do not tell
        NoEnd,   ///< the log has nothing to compare with
    };
    Text name;
    Text recomputed; ///< empty if unknown
    Text logged;     ///< empty without an end
    Verdict verdict = Verdict::Equal;
    /// Logged without recomputed; empty unless they differ.
    Text difference;
};

/// All metrics of the log's end, in its order; without one, those that can be counted.
[[nodiscard]] std::vector<ReplayedMetric> Replay(const LogFile& log);

} // namespace ondrilo
