#pragma once

#include "platform/SimulatorDialog.h"

#include <vector>

namespace ondrilo {

/// What a run of the word simulator has counted so far.
struct WordSimulationFigures {
    int words = 0;
    /// Of the text, each word with one separator, and those that the person had to write.
    int characters = 0;
    int userCharacters = 0;
    /// Without prediction, and by the person with it.
    int keyPresses = 0;
    int userKeyPresses = 0;
    int predictions = 0;
    int successes = 0;
    /// Over the successes: places in the list, from 0, and letters written before.
    int positionSum = 0;
    int lettersSum = 0;

    bool operator==(const WordSimulationFigures&) const = default;
};

[[nodiscard]] std::vector<Indicator> IndicatorsOf(const WordSimulationFigures& figures);
/// The line of a run in a results file, tab-separated, with its line feed.
[[nodiscard]] Text ResultsRow(const WordSimulationFigures& figures);

} // namespace ondrilo
