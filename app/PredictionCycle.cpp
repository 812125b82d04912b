#include "app/PredictionCycle.h"

#include "app/PictogramSearch.h"
#include "text/CaseFolding.h"
#include "text/NormalForm.h"

#include <stdexcept>

namespace ondrilo {
namespace {

/// Stands for the start of a sentence, or of a text, in the dictionaries.
constexpr TextView kStart = "___";

Text OrStart(Text text) {
    if (text.empty())
        text = kStart;
    return text;
}

} // namespace

PredictionCycle::PredictionCycle(const CUserProfileSet& profiles, const Targets& targets,
                                 Predictions& predictions, PredictionKeys& keys,
                                 const SessionServices& services)
    : profiles(profiles), targets(targets), predictions(predictions), keys(keys), services(services) {
}

void PredictionCycle::RunPrediction() {
    if (services.cooperation.IsUp())
        return;
    PredictWords();
    PredictSentences();
    keys.text.ShowTextPredictions();
    const auto& profile = Profile().properties;
    FindPictograms(predictions, {profile.IsOn(option::COLOCAR_ETIQUETA_FRASES_TRADUZIDAS_SIMBOLOS),
                                 profile.IsOn(option::SAIDA_TEXTO_FRASES_TRADUZIDAS_SIMBOLOS)});
    keys.images.ShowImagePredictions();
    ReactWithAgent();
    if (services.log.IsOpen())
        services.metrics.Count(Metric::Prediction);
}

void PredictionCycle::PredictWords() {
    if (!targets.Current())
        return;
    const auto& target = *targets.Current();
    const auto word = MakeLower(target.GetCurrentWordLeft());
    const auto previous = OrStart(MakeLower(target.GetLabelledPreviousWord()));
    const auto forms = WordForms(word, target.GetLabelledSentenceWritten());
    best.clear();
    try {
        wordPredictor.PredictForms(Profile().dictionary, Profile().properties, previous, forms);
        wordPredictor.BestWords(kMaximumPredictions, best);
    } catch (const std::invalid_argument&) {
        // More candidates than a search holds: no words this time, and the session goes on.
        best.clear();
    }
    auto kept = FilterWords(best, Limits(option::NUMERO_MAXIMO_LETRAS_PALAVRAS_PREDITAS));
    predictions.predictedWords = std::move(kept.plain);
    predictions.predictedPictogramWords = std::move(kept.pictograms);
}

void PredictionCycle::PredictSentences() {
    if (!targets.Current())
        return;
    const auto& target = *targets.Current();
    const auto written = target.GetLabelledSentenceWritten();
    const auto previous = OrStart(NormalizeSentence(target.GetLabelledPreviousSentence()));
    best.clear();
    try {
        sentencePredictor.PredictForms(Profile().dictionary, Profile().properties, previous,
                                       SentenceForms(written));
        sentencePredictor.BestSentences(kMaximumPredictions, best);
    } catch (const std::invalid_argument&) {
        best.clear();
    }
    auto kept = FilterSentences(best, Limits(option::NUMERO_MAXIMO_LETRAS_FRASES_PREDITAS));
    predictions.predictedSentences = std::move(kept.plain);
    predictions.predictedPictogramSentences = std::move(kept.pictograms);
}

ResultLimits PredictionCycle::Limits(IntegerOption longest) const {
    const auto& profile = Profile().properties;
    return {profile.Get(option::LETRAS_NAO_PRETENDIDAS),
            profile.Get(option::SEQUENCIAS_LETRAS_NAO_PRETENDIDAS), profile.Get(longest)};
}

void PredictionCycle::ReactWithAgent() {
    if (!Profile().properties.IsOn(option::AGENTE_ACTIVO))
        return;
    if (!predictions.predictedWords.empty() || !predictions.predictedSentences.empty()) {
        services.agent.Play("Acknowledge");
        return;
    }
    services.agent.Play("Confused");
    services.agent.Play("RestPose");
}

} // namespace ondrilo
