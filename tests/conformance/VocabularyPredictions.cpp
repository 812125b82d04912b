#include "prediction/ResultFilter.h"
#include "tests/conformance/VocabularyArea.h"

namespace ondrilo::conformance {
namespace {

Values ScoresOf(const std::vector<DictionaryScore>& best) {
    Values values;
    for (const auto& entry : best)
        Append(values, {Text(entry.text), Real(entry.score)});
    return values;
}

Tokens FormsOf(const Arguments& arguments) {
    return {arguments.begin() + 2, arguments.end()};
}

using Filter = FilteredResults (*)(std::span<const DictionaryScore>, const ResultLimits&);

Values FilteredBy(Filter filter, const Arguments& arguments) {
    std::vector<DictionaryScore> best;
    for (std::size_t i = 3; i < arguments.size(); ++i)
        best.push_back({arguments[i], 0});
    const FilteredResults results = filter(best, {arguments.at(0), arguments.at(1), arguments.Integer(2)});
    Values values = ToValues(results.plain.size());
    Append(values, results.plain);
    Append(values, results.pictograms);
    return values;
}

} // namespace

void VocabularyArea::AddPredictions() {
    On("coefficients", [this](const auto& a) {
        const IntegerOption coefficients[] = {
            option::COEFICIENTE_FREQUENCIA_PALAVRA,
            option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR,
            option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS,
            option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR,
            option::COEFICIENTE_CLASSE_PALAVRA,
        };
        for (std::size_t i = 0; i < std::size(coefficients); ++i)
            profile.Set(coefficients[i], a.Integer(i));
    });
    On("predict_words", [this](const auto& a) {
        wordPredictor.Predict(Dictionary(), profile, a.at(1), a.at(2));
        return BestWords(a.Index(0));
    });
    On("predict_word_forms", [this](const auto& a) {
        wordPredictor.PredictForms(Dictionary(), profile, a.at(1), FormsOf(a));
        return BestWords(a.Index(0));
    });
    On("predict_sentences", [this](const auto& a) {
        sentencePredictor.Predict(Dictionary(), profile, a.at(1), a.at(2));
        return BestSentences(a.Index(0));
    });
    On("predict_sentence_forms", [this](const auto& a) {
        sentencePredictor.PredictForms(Dictionary(), profile, a.at(1), FormsOf(a));
        return BestSentences(a.Index(0));
    });
}

Values VocabularyArea::BestWords(std::size_t most) {
    CDictionaryWordScoreSet best;
    wordPredictor.BestWords(most, best);
    return ScoresOf(best);
}

Values VocabularyArea::BestSentences(std::size_t most) {
    CDictionarySentenceScoreSet best;
    sentencePredictor.BestSentences(most, best);
    return ScoresOf(best);
}

void VocabularyArea::AddFilters() {
    On("filter_words", [](const auto& a) { return FilteredBy(FilterWords, a); });
    On("filter_sentences", [](const auto& a) { return FilteredBy(FilterSentences, a); });
}

} // namespace ondrilo::conformance
