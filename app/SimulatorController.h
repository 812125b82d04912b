#pragma once

#include "app/BulkLearningController.h"
#include "app/PredictionCycle.h"
#include "platform/SimulatorDialog.h"
#include "simulators/WordSimulation.h"

namespace ondrilo {

/// The window of the word simulator, on the active profile.
class SimulatorController : private Simulator {
  public:
    SimulatorController(const Environment& environment, CUserProfileSet& profiles, PredictionCycle& cycle);

    /// Returns when the window is closed.
    void SimulateWords();

  private:
    [[nodiscard]] std::vector<TextView> IndicatorLabels() const override;
    [[nodiscard]] std::optional<std::filesystem::path> TextOfClipboard() override;
    void Run(const SimulatorChoices& choices, SimulatorProgress& progress) override;
    void OpenResults(ResultsFile& results);

    Environment environment;
    CUserProfileSet& profiles;
    PredictionCycle& cycle;
};

} // namespace ondrilo
