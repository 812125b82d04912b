#pragma once

#include "logging/MetricsSink.h"

#include <array>
#include <cstdint>

namespace ondrilo {

class MetricLines;

/// The numbers that tell how much the system helped a person, and their lines.
class CMetrics : public MetricsSink {
  public:
    void Reset() override;
    void Count(Metric metric, int amount) override;
    void Completed(const Completion& completion) override;
    /// Name, blank and value of each metric; "-" stands for a mean over nothing.
    [[nodiscard]] std::vector<Text> Lines(const MetricsFacts& facts) const override;

  private:
    /// Things of one kind that were selected, with the sums that their means are made of.
    struct Tally {
        std::int32_t count = 0;
        std::int32_t positions = 0;
        std::int32_t prefixes = 0;
    };
    void AddGeneral(MetricLines& lines, const MetricsFacts& facts) const;
    void AddCompletions(MetricLines& lines) const;
    void AddTail(MetricLines& lines) const;
    [[nodiscard]] std::int32_t Of(Metric metric) const { return counters[static_cast<std::size_t>(metric)]; }

    std::array<std::int32_t, kMetricCount> counters{};
    std::array<Tally, Completion::kKinds * Completion::kSources> completions{};
};

/// The share of the keys of an ordinary keyboard that `activations` saved, in per cent; negative if there
/// were more of them, "-" if there is nothing to compare with.
[[nodiscard]] Text Saving(int qwertyKeys, int activations);

} // namespace ondrilo
