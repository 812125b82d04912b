#include "app/SimulatorController.h"

#include "app/TopMostPause.h"

namespace ondrilo {
namespace {

/// Hands on to the window and to the file.
class Report : public WordSimulationObserver {
  public:
    Report(SimulatorProgress& progress, ResultsFile& results) : progress(progress), results(results) {}

    void RunStarts(int words) override { progress.RunStarts(words); }
    void WordWritten(TextView word, const WordSimulationFigures& figures) override {
        progress.WordWritten(word, IndicatorsOf(figures));
    }
    void RunEnds(const WordSimulationFigures& figures) override {
        if (auto saved = results.Append(figures); !saved)
            problem = saved.problem;
    }

    Text problem;

  private:
    SimulatorProgress& progress;
    ResultsFile& results;
};

} // namespace

SimulatorController::SimulatorController(const Environment& environment, CUserProfileSet& profiles,
                                         PredictionCycle& cycle)
    : environment(environment), profiles(profiles), cycle(cycle) {
}

void SimulatorController::SimulateWords() {
    {
        const TopMostPause pause(environment.frame);
        environment.dialogs.SimulateWords(*this);
    }
    cycle.RunPrediction();
}

std::vector<TextView> SimulatorController::IndicatorLabels() const {
    std::vector<TextView> labels;
    for (const auto& indicator : IndicatorsOf({}))
        labels.push_back(indicator.label);
    return labels;
}

std::optional<std::filesystem::path> SimulatorController::TextOfClipboard() {
    return CopyClipboardToFile(environment);
}

void SimulatorController::Run(const SimulatorChoices& choices, SimulatorProgress& progress) {
    ResultsFile results;
    if (choices.saveResults)
        OpenResults(results);
    Report report(progress, results);
    environment.frame.SetBusy(true);
    const auto outcome = ondrilo::SimulateWords(profiles.Active(), choices.text,
                                                static_cast<WordSimulationType>(choices.type), report);
    environment.frame.SetBusy(false);
    for (const auto& problem : {outcome.problem, report.problem})
        if (!problem.empty())
            environment.frame.SetStatusMessage(problem);
    for (const auto& message : outcome.messages)
        environment.boxes.Show(message);
}

void SimulatorController::OpenResults(ResultsFile& results) {
    const auto name = ResultsFileName(profiles.Active().properties.profileName, environment.clock.Local());
    if (!results.Open(environment.dataFolder.Path(name)))
        environment.boxes.Show("Erro na abertura do ficheiro de metricas!");
}

} // namespace ondrilo
