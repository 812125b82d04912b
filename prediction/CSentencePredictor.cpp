#include "prediction/CSentencePredictor.h"

#include "text/NormalForm.h"

#include <algorithm>

namespace ondrilo {

void CSentencePredictor::Predict(const CDictionary& dictionary, const CUserProfileProperties&,
                                 TextView previousSentence, TextView prefix) {
    Start(dictionary, previousSentence);
    if (prefix.empty())
        candidates.AddSuccessorsOf(previous);
    else
        AddContinuations(dictionary.Sentences(), prefix);
    Score(dictionary);
}

void CSentencePredictor::PredictForms(const CDictionary& dictionary, const CUserProfileProperties&,
                                      TextView previousSentence, const Tokens& prefixForms) {
    Start(dictionary, previousSentence);
    const bool allEmpty =
        std::all_of(prefixForms.begin(), prefixForms.end(), [](const Text& form) { return form.empty(); });
    if (allEmpty)
        candidates.AddSuccessorsOf(previous);
    else
        for (const Text& form : prefixForms)
            AddContinuations(dictionary.Sentences(), form);
    Score(dictionary);
}

void CSentencePredictor::Start(const CDictionary& dictionary, TextView previousSentence) {
    candidates.Start(dictionary.Sentences());
    previous =
        previousSentence.empty() ? kNoEntry : dictionary.Sentences().Find(Normalize(previousSentence)).entry;
}

void CSentencePredictor::AddContinuations(const Vocabulary& sentences, TextView prefix) {
    candidates.AddRun(sentences.WithPrefix(Normalize(prefix)));
}

void CSentencePredictor::Score(const CDictionary& dictionary) {
    ScoreRule rule;
    rule.totals = dictionary.SentenceTotals();
    rule.previous = previous;
    candidates.Score(rule);
}

TextView CSentencePredictor::Normalize(TextView text) {
    NormalizeSentence(text, normal);
    return normal;
}

} // namespace ondrilo
