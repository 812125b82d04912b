#include "app/SpeechController.h"

#include "text/NormalForm.h"
#include "text/Splitter.h"

namespace ondrilo {
namespace {

/// One line without the blanks before its first sentence mark: "bom dia  ." is said as "bom dia.".
Text SpokenForm(TextView written) {
    Text form = CollapseWhiteSpace(written);
    auto mark = form.find_first_of(kTerminators);
    while (mark != Text::npos && mark > 0 && form[mark - 1] == ' ')
        form.erase(--mark, 1);
    return form;
}

} // namespace

SpeechController::SpeechController(const CUserProfileSet& profiles, const Targets& targets,
                                   LearningController& learning, const SessionServices& services)
    : profiles(profiles), targets(targets), learning(learning), services(services) {
}

Text SpeechController::SpeakText(TextView text) {
    if (text.empty() || profiles.Active().properties.Get(option::NOME_SINTETIZADOR_FALA) == "Nenhum")
        return {};
    services.speech.Speak(text);
    return Text(text);
}

SpeechController::Spoken SpeechController::SpeakWordOrImage() {
    if (Target() && Target()->IsAfterImage() && !Target()->IsInsideWord())
        return {true, SpeakCurrentImage()};
    return {false, SpeakCurrentWord()};
}

Text SpeechController::SpeakCurrentWord() {
    if (!Target())
        return {};
    auto word = Target()->GetCurrentWord();
    if (word.empty())
        word = Target()->GetPreviousWord();
    const auto spoken = TrimLeft(word);
    Count(Metric::SpokenWord, spoken, false);
    return SpeakText(spoken);
}

Text SpeechController::SpeakCurrentImage() {
    if (!Target())
        return {};
    auto label = Target()->GetImageLabelAtCursor();
    if (label.empty())
        label = Target()->GetLastImageLabel();
    Count(Metric::SpokenPictogram, label, false);
    return SpeakText(label);
}

Text SpeechController::SpeakCurrentSentence() {
    if (!Target())
        return {};
    learning.LearnCurrentSentence();
    // A blank after a full stop begins the next sentence, but the one before is what the person means.
    auto sentence = Target()->GetCurrentSentence();
    if (Trim(sentence).empty())
        sentence = Target()->GetPreviousSentence();
    const auto spoken = SpokenForm(sentence);
    Count(Metric::SpokenSentence, spoken, true);
    return SpeakText(spoken);
}

Text SpeechController::SpeakAll() {
    if (!Target())
        return {};
    learning.LearnCurrentSentence();
    const auto text = Target()->GetTextWithLabels();
    const auto spoken = SpokenForm(Trim(text));
    Count(Metric::SpokenText, spoken, true);
    return SpeakText(spoken);
}

void SpeechController::SpeakEndedWord() {
    if (Target())
        SpeakText(Target()->GetPreviousWord());
}

void SpeechController::SpeakEndedSentence() {
    if (Target())
        SpeakText(Target()->GetPreviousSentence());
}

void SpeechController::Count(Metric kind, TextView text, bool withSentences) {
    if (!services.log.IsOpen() || text.empty())
        return;
    services.metrics.Count(kind);
    services.metrics.Count(Metric::WordInSpeech, static_cast<int>(Split(text).size()));
    if (withSentences)
        services.metrics.Count(Metric::SentenceInSpeech, static_cast<int>(Split(text, kTerminators).size()));
}

} // namespace ondrilo
