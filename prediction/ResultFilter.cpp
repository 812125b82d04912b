#include "prediction/ResultFilter.h"

#include "text/Classes.h"
#include "text/NormalForm.h"

#include <algorithm>

namespace ondrilo {
namespace {

/// Tells unwanted letters and sequences apart from what may be shown.
class Unwanted {
  public:
    explicit Unwanted(const ResultLimits& limits)
        : letters(limits.unwantedLetters), sequences(Split(limits.unwantedSequences)) {}

    [[nodiscard]] bool In(TextView text) const {
        const auto occurs = [text](const Text& part) {
            return text.find(part) != TextView::npos;
        };
        return text.find_first_of(letters) != TextView::npos ||
               std::any_of(sequences.begin(), sequences.end(), occurs);
    }

  private:
    TextView letters;
    Tokens sequences;
};

bool IsShortEnough(TextView text, const ResultLimits& limits) {
    return static_cast<std::int64_t>(text.size()) <= limits.longest;
}

/// Adds a text of pictograms unless one that reads the same, brackets aside, is there already.
void AddPictogram(TextView text, Tokens& readings, Tokens& pictograms) {
    Text reading = CollapseWhiteSpace(WithoutBrackets(text));
    if (std::find(readings.begin(), readings.end(), reading) != readings.end())
        return;
    readings.push_back(std::move(reading));
    pictograms.emplace_back(text);
}

using Test = bool (*)(TextView);

FilteredResults Filter(std::span<const DictionaryScore> best, const ResultLimits& limits, Test isPictogram,
                       Test isPlain) {
    const Unwanted unwanted(limits);
    FilteredResults kept;
    Tokens readings;
    for (const auto& [text, score] : best) {
        if (unwanted.In(text))
            continue;
        if (isPictogram(text))
            AddPictogram(text, readings, kept.pictograms);
        else if (isPlain(text) && IsShortEnough(text, limits))
            kept.plain.emplace_back(text);
    }
    return kept;
}

} // namespace

FilteredResults FilterWords(std::span<const DictionaryScore> best, const ResultLimits& limits) {
    return Filter(best, limits, IsPictogramToken, IsSingleWord);
}

FilteredResults FilterSentences(std::span<const DictionaryScore> best, const ResultLimits& limits) {
    return Filter(best, limits, IsAllPictograms, HasNoPictograms);
}

} // namespace ondrilo
