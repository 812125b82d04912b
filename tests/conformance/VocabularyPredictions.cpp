#include "prediction/ResultFilter.h"
#include "tests/conformance/VocabularyArea.h"

namespace ondrilo::conformance {
namespace {

Values ScoresOf(const std::vector<DictionaryScore>& best) {
    Values values;
    for (const auto& entry : best) {
        values.emplace_back(entry.text);
        values.push_back(Real(entry.score));
    }
    return values;
}

std::size_t MostOf(const Arguments& arguments) {
    return static_cast<std::size_t>(ToInteger(arguments.at(0)));
}

Tokens FormsOf(const Arguments& arguments) {
    return {arguments.begin() + 2, arguments.end()};
}

using Filter = FilteredResults (*)(std::span<const DictionaryScore>, const ResultLimits&);

Values FilteredBy(Filter filter, const Arguments& arguments) {
    std::vector<DictionaryScore> best;
    for (std::size_t i = 3; i < arguments.size(); ++i)
        best.push_back({arguments[i], 0});
    const FilteredResults results =
        filter(best, {arguments.at(0), arguments.at(1), ToInteger(arguments.at(2))});
    Values values{Number(static_cast<int>(results.plain.size()))};
    for (const Tokens& kept : {results.plain, results.pictograms})
        values.insert(values.end(), kept.begin(), kept.end());
    return values;
}

} // namespace

void VocabularyArea::SetCoefficients(const Arguments& weights) {
    const IntegerOption coefficients[] = {
        option::COEFICIENTE_FREQUENCIA_PALAVRA,      option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR,
        option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS, option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR,
        option::COEFICIENTE_CLASSE_PALAVRA,
    };
    std::size_t next = 0;
    for (const auto coefficient : coefficients)
        profile.Set(coefficient, ToInteger(weights.at(next++)));
}

void VocabularyArea::AddPredictions() {
    On("coefficients", [this](const Arguments& a) {
        SetCoefficients(a);
        return Values{};
    });
    On("predict_words", [this](const Arguments& a) {
        wordPredictor.Predict(Dictionary(), profile, a.at(1), a.at(2));
        CDictionaryWordScoreSet best;
        wordPredictor.BestWords(MostOf(a), best);
        return ScoresOf(best);
    });
    On("predict_word_forms", [this](const Arguments& a) {
        wordPredictor.PredictForms(Dictionary(), profile, a.at(1), FormsOf(a));
        CDictionaryWordScoreSet best;
        wordPredictor.BestWords(MostOf(a), best);
        return ScoresOf(best);
    });
    On("predict_sentences", [this](const Arguments& a) {
        sentencePredictor.Predict(Dictionary(), profile, a.at(1), a.at(2));
        CDictionarySentenceScoreSet best;
        sentencePredictor.BestSentences(MostOf(a), best);
        return ScoresOf(best);
    });
    On("predict_sentence_forms", [this](const Arguments& a) {
        sentencePredictor.PredictForms(Dictionary(), profile, a.at(1), FormsOf(a));
        CDictionarySentenceScoreSet best;
        sentencePredictor.BestSentences(MostOf(a), best);
        return ScoresOf(best);
    });
}

void VocabularyArea::AddFilters() {
    On("filter_words", [](const Arguments& a) { return FilteredBy(FilterWords, a); });
    On("filter_sentences", [](const Arguments& a) { return FilteredBy(FilterSentences, a); });
}

} // namespace ondrilo::conformance
