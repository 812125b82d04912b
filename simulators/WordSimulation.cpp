#include "simulators/WordSimulation.h"

#include "logging/TimeText.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr int kFull = 100;
constexpr int kHalf = 50;
constexpr int kStep = 2;

std::vector<PredictionFactors> FactorByFactor() {
    return {
        {.adapts = false},
        {.adapts = false, .word = kFull},
        {.adapts = false, .word = kFull, .pair = kFull},
        {.adapts = false, .word = kFull, .pair = kFull, .wordClass = kFull},
        {.adapts = true, .word = kFull, .pair = kFull, .userWord = kFull},
        {.adapts = true, .word = kFull, .pair = kFull, .userWord = kFull, .userPair = kFull},
    };
}

std::vector<PredictionFactors> GraduallyRaised() {
    struct Sweep {
        PredictionFactors start;
        int PredictionFactors::*raised;
    };
    const Sweep sweeps[] = {
        {{.adapts = false}, &PredictionFactors::word},
        {{.adapts = false, .word = kHalf}, &PredictionFactors::pair},
        {{.adapts = false, .word = kHalf, .pair = kHalf}, &PredictionFactors::wordClass},
        {{.adapts = true, .word = kHalf, .pair = kHalf}, &PredictionFactors::userWord},
        {{.adapts = true, .word = kHalf, .pair = kHalf, .userWord = kHalf}, &PredictionFactors::userPair},
    };
    std::vector<PredictionFactors> runs;
    for (const auto& [start, raised] : sweeps)
        for (int value = 0; value <= kFull; value += kStep) {
            runs.push_back(start);
            runs.back().*raised = value;
        }
    return runs;
}

void Apply(const PredictionFactors& factors, CUserProfile& profile) {
    profile.Set(option::ADAPTACAO_UTILIZADOR, factors.adapts ? 1 : 0);
    profile.Set(option::COEFICIENTE_FREQUENCIA_PALAVRA, factors.word);
    profile.Set(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS, factors.pair);
    profile.Set(option::COEFICIENTE_CLASSE_PALAVRA, factors.wordClass);
    profile.Set(option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR, factors.userWord);
    profile.Set(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR, factors.userPair);
}

void RunOnce(CWordPredictionSimulator& simulator, WordSimulationObserver& observer) {
    observer.RunStarts(simulator.CountWords());
    while (simulator.Step())
        observer.WordWritten(simulator.Word(), simulator.Figures());
    observer.RunEnds(simulator.Figures());
}

void AddNew(const std::vector<Text>& messages, std::vector<Text>& told) {
    for (const auto& message : messages)
        if (std::find(told.begin(), told.end(), message) == told.end())
            told.push_back(message);
}

} // namespace

std::vector<std::optional<PredictionFactors>> ScheduleOf(WordSimulationType type) {
    if (type == WordSimulationType::AsTheyAre)
        return {std::nullopt};
    const auto runs = type == WordSimulationType::FactorByFactor ? FactorByFactor() : GraduallyRaised();
    return {runs.begin(), runs.end()};
}

WordSimulationOutcome SimulateWords(CUserProfile& profile, const std::filesystem::path& text,
                                    WordSimulationType type, WordSimulationObserver& observer) {
    WordSimulationOutcome outcome;
    CWordPredictionSimulator simulator;
    for (const auto& factors : ScheduleOf(type)) {
        if (factors)
            Apply(*factors, profile);
        if (!simulator.Start(profile.dictionary, profile.properties, text)) {
            outcome.problem = simulator.Problem();
            break;
        }
        RunOnce(simulator, observer);
        AddNew(simulator.End(), outcome.messages);
    }
    return outcome;
}

Text ResultsFileName(TextView profileName, const LocalTime& now) {
    return Text(profileName) + " " + TimeForFileName(now) + ".sim";
}

SaveResult ResultsFile::Open(const std::filesystem::path& newPath) {
    rows.clear();
    path.clear();
    auto saved = ReplaceFile(newPath, rows);
    if (saved)
        path = newPath;
    return saved;
}

SaveResult ResultsFile::Append(const WordSimulationFigures& figures) {
    if (path.empty())
        return {};
    rows += ResultsRow(figures);
    return ReplaceFile(path, rows);
}

} // namespace ondrilo
