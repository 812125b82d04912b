#include "app/SpeechController.h"

#include "text/Counting.h"
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

bool SpeechController::HasVoice() const {
    return profiles.Active().properties.Get(option::NOME_SINTETIZADOR_FALA) != kNoVoice;
}

Text SpeechController::SpeakText(TextView text) {
    if (text.empty() || !HasVoice() || targets.IsPassword())
        return {};
    services.speech.Speak(text);
    return Text(text);
}

void SpeechController::SpeakCue(TextView text) {
    if (!text.empty() && HasVoice())
        services.cueSpeech.Speak(text);
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
    auto spoken = SpeakText(TrimLeft(word));
    Count(Metric::SpokenWord, spoken, false);
    return spoken;
}

Text SpeechController::SpeakCurrentImage() {
    if (!Target())
        return {};
    auto label = Target()->GetImageLabelAtCursor();
    if (label.empty())
        label = Target()->GetLastImageLabel();
    auto spoken = SpeakText(label);
    Count(Metric::SpokenPictogram, spoken, false);
    return spoken;
}

Text SpeechController::SpeakCurrentSentence() {
    if (!Target())
        return {};
    learning.LearnCurrentSentence();
    // A blank after a full stop begins the next sentence, but the one before is what the person means.
    auto sentence = Target()->GetCurrentSentence();
    if (Trim(sentence).empty())
        sentence = Target()->GetPreviousSentence();
    auto spoken = SpeakText(SpokenForm(sentence));
    Count(Metric::SpokenSentence, spoken, true);
    return spoken;
}

Text SpeechController::SpeakAll() {
    if (!Target())
        return {};
    learning.LearnCurrentSentence();
    const auto text = Target()->GetTextWithLabels();
    auto spoken = SpeakText(SpokenForm(Trim(text)));
    Count(Metric::SpokenText, spoken, true);
    return spoken;
}

void SpeechController::SpeakEndedWord() {
    if (Target())
        SpeakText(Target()->GetPreviousWord());
}

void SpeechController::SpeakEndedSentence() {
    if (Target())
        SpeakText(Target()->GetPreviousSentence());
}

void SpeechController::Count(Metric kind, TextView spoken, bool withSentences) {
    if (!services.log.IsOpen() || spoken.empty())
        return;
    services.metrics.Count(kind);
    services.metrics.Count(Metric::WordInSpeech, CountWords(spoken));
    if (withSentences)
        services.metrics.Count(Metric::SentenceInSpeech,
                               static_cast<int>(Split(spoken, kTerminators, kAllTokens).size()));
}

} // namespace ondrilo
