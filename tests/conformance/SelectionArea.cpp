#include "tests/conformance/SelectionArea.h"

#include "prediction/BestSelection.h"

namespace ondrilo::conformance {

SelectionArea::SelectionArea(const std::filesystem::path&) {
    On("best", [](const Arguments& a) {
        std::vector<double> scores;
        for (std::size_t i = 2; i < a.size(); i += 2)
            scores.push_back(ToReal(a[i]));
        std::vector<SelectedScore> best;
        SelectBest(scores, static_cast<std::size_t>(ToInteger(a.at(0))), best);
        Values values;
        for (const auto& [score, index] : best) {
            values.push_back(a.at(1 + 2 * index));
            values.push_back(Real(score));
        }
        return values;
    });
}

} // namespace ondrilo::conformance
