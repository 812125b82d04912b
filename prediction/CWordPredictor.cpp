#include "prediction/CWordPredictor.h"

#include "profiles/CUserProfileProperties.h"
#include "text/CaseFolding.h"

#include <algorithm>

namespace ondrilo {

void CWordPredictor::Predict(const CDictionary& dictionary, const CUserProfileProperties& profile,
                             TextView previousWord, TextView prefix) {
    Start(dictionary, previousWord);
    Gather(dictionary.Words(), prefix);
    Score(dictionary, profile);
}

void CWordPredictor::PredictForms(const CDictionary& dictionary, const CUserProfileProperties& profile,
                                  TextView previousWord, const Tokens& prefixForms) {
    Start(dictionary, previousWord);
    const bool allEmpty =
        std::all_of(prefixForms.begin(), prefixForms.end(), [](const Text& form) { return form.empty(); });
    if (allEmpty)
        Gather(dictionary.Words(), {});
    else
        for (const Text& form : prefixForms)
            Gather(dictionary.Words(), form);
    Score(dictionary, profile);
}

void CWordPredictor::Start(const CDictionary& dictionary, TextView previousWord) {
    candidates.Start(dictionary.Words());
    previous = previousWord.empty() ? kNoEntry : dictionary.Words().Find(Fold(previousWord)).entry;
}

void CWordPredictor::Gather(const Vocabulary& words, TextView prefix) {
    if (prefix.empty())
        candidates.AddSuccessorsOf(previous);
    else
        candidates.AddRun(words.WithPrefix(Fold(prefix)));
}

void CWordPredictor::Score(const CDictionary& dictionary, const CUserProfileProperties& profile) {
    ScoreRule rule;
    rule.totals = dictionary.WordTotals();
    rule.weight = profile.Get(option::COEFICIENTE_FREQUENCIA_PALAVRA);
    rule.userWeight = profile.Get(option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR);
    rule.previous = previous;
    rule.pairWeight = profile.Get(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS);
    rule.userPairWeight = profile.Get(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR);
    FillClassTerms(dictionary, profile.Get(option::COEFICIENTE_CLASSE_PALAVRA));
    rule.classTerms = classTerms;
    candidates.Score(rule);
}

void CWordPredictor::FillClassTerms(const CDictionary& dictionary, double weight) {
    classTerms.clear();
    const Vocabulary& words = dictionary.Words();
    if (previous == kNoEntry || words.ClassOf(previous) == 0)
        return;
    const Text& previousClass = words.ClassNames()[words.ClassOf(previous)];
    // Divisions by a total of 0 are not guarded: without class tables every score becomes not-a-number.
    const double share =
        static_cast<double>(dictionary.wordClasses.Frequency(previousClass)) / dictionary.wordClasses.Total();
    const auto term = [&](int pairs) {
        const double pairShare = static_cast<double>(pairs) / dictionary.wordClassPairs.Total();
        return weight * (share == 0 ? 0 : pairShare / share);
    };
    classTerms.assign(words.ClassNames().size(), term(0));
    if (const auto* row = dictionary.wordClassPairs.After(previousClass))
        for (const auto& [name, pairs] : *row)
            if (const ClassId id = words.FindClass(name); id != 0)
                classTerms[id] = term(pairs);
}

TextView CWordPredictor::Fold(TextView text) {
    folded.assign(text);
    for (char& c : folded)
        c = MakeLower(c);
    return folded;
}

} // namespace ondrilo
