#pragma once

#include "text/Text.h"

#include <filesystem>
#include <optional>
#include <vector>

/// Between the window of a simulator and the logic behind it.
namespace ondrilo {

/// A figure that a simulator tells, under its label.
struct Indicator {
    TextView label;
    Text value;
};

/// What the person chose in the window.
struct SimulatorChoices {
    std::filesystem::path text;
    int type = 0; ///< by the radio buttons, from 0
    bool saveResults = false;
};

/// Shows how a run goes on.
class SimulatorProgress {
  public:
    virtual ~SimulatorProgress() = default;
    virtual void RunStarts(int words) = 0;
    virtual void WordWritten(TextView word, const std::vector<Indicator>& indicators) = 0;
};

/// What the window asks for.
class Simulator {
  public:
    virtual ~Simulator() = default;
    /// The labels under which a run tells its figures, in order.
    [[nodiscard]] virtual std::vector<TextView> IndicatorLabels() const = 0;
    /// A file with the clipboard's text; nothing if there is none or it is too long.
    [[nodiscard]] virtual std::optional<std::filesystem::path> TextOfClipboard() = 0;
    /// All runs that were chosen; returns after the last one.
    virtual void Run(const SimulatorChoices& choices, SimulatorProgress& progress) = 0;
};

} // namespace ondrilo
