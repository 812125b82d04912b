#pragma once

#include "simulators/WordSimulationFigures.h"

#include <map>
#include <utility>
#include <vector>

namespace ondrilo {

/// The simulator's figures worked out a second time, from what an ideal person does and from the formulas of
/// the ranking, over plain maps and without any of the classes under test. Every word is ranked anew for each
/// prefix. Knows small letters, the accents of `KeysOf`, and capitals that stand alone.
class IdealPerson {
  public:
    struct Counters {
        int general = 0;
        int user = 0;
    };
    struct Weights {
        int word = 0, pair = 0, userWord = 0, userPair = 0;
    };

    std::map<Text, Counters> words;
    std::map<std::pair<Text, Text>, Counters> pairs;
    Weights weights;
    std::size_t listed = 0;
    bool learns = false;

    [[nodiscard]] WordSimulationFigures Write(TextView text);

  private:
    void WriteWord(const Text& word, const Text& previous, WordSimulationFigures& figures);
    [[nodiscard]] std::vector<Text> List(const Text& previous, TextView prefix) const;
    [[nodiscard]] double Score(const Text& word, const Text& previous) const;
};

} // namespace ondrilo
