#include "simulators/CWordPredictionSimulator.h"
#include "tests/conformance/VocabularyArea.h"

namespace ondrilo::conformance {
namespace {

/// The word simulator on a dictionary, step by step.
class WordSimulatorArea : public VocabularyArea {
  public:
    explicit WordSimulatorArea(const std::filesystem::path& folder) : VocabularyArea(folder) {
        On("profile_set", [this](const auto& a) { options.Parse(a.at(0) + " " + a.at(1) + "\n"); });
        On("count_words", [folder](const auto& a) {
            CDictionary none;
            const CUserProfileProperties standard;
            CWordPredictionSimulator counter;
            (void)counter.Start(none, standard, a.In(folder));
            return counter.CountWords();
        });
        On("words_start", [this, folder](const auto& a) {
            return simulator.Start(Dictionary(), options, a.In(folder)) ? Values{} : Values{"failed"};
        });
        On("words_step", [this](const auto&) { return Step(); });
        On("words_row", [this](const auto&) { return ResultsRow(simulator.Figures()); });
        On("words_end", [this](const auto&) { return simulator.End(); });
    }

  private:
    [[nodiscard]] Values Step() {
        Values values{Flag(simulator.Step())};
        const auto& f = simulator.Figures();
        Append(values, NumbersOf(f.words, f.characters, f.userCharacters, f.keyPresses, f.userKeyPresses,
                                 f.predictions, f.successes, f.positionSum, f.lettersSum));
        return values;
    }

    CUserProfileProperties options;
    CWordPredictionSimulator simulator;
};

} // namespace

const AreaMaker kWordSimulatorArea = Make<WordSimulatorArea>;

} // namespace ondrilo::conformance
