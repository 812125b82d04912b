#include "app/CompletionController.h"

#include "keyboards/Pictograms.h"
#include "text/Classes.h"
#include "text/Counting.h"
#include "text/NormalForm.h"

#include <optional>

namespace ondrilo {
namespace {

/// What is left of `text` after as many characters as `written` has.
TextView Rest(TextView text, TextView written) {
    return text.substr(std::min(text.size(), written.size()));
}

std::optional<Completion::Kind> KindOf(TextView text) {
    if (IsSentence(text))
        return Completion::Kind::Sentence;
    if (IsWordSequence(text))
        return Completion::Kind::WordSequence;
    if (IsSingleWord(text))
        return Completion::Kind::Word;
    return std::nullopt;
}

Text WordsOnly(TextView text) {
    return NormalizeSentence(Join(Split(text), " "));
}

} // namespace

CompletionController::CompletionController(const CUserProfileSet& profiles, const Targets& targets,
                                           PredictionKeys& keys, COnScreenKeyboard& keyboard,
                                           PredictionCycle& cycle, LearningController& learning,
                                           const CKeyboard& keyboardSimulator, SessionState& state,
                                           const SessionServices& services)
    : profiles(profiles), targets(targets), keys(keys), keyboard(keyboard), cycle(cycle), learning(learning),
      keyboardSimulator(keyboardSimulator), state(state), services(services) {
}

void CompletionController::CompleteWord(int position) {
    if (!targets.Current())
        return;
    const auto word = keys.text.WordAt(position);
    if (!word.empty())
        WriteWord(word, {Completion::Source::TextList, keys.lists.words.IndexOf(position)});
    cycle.RunPrediction();
}

void CompletionController::CompleteSentence(int position) {
    if (!targets.Current())
        return;
    const auto sentence = keys.text.SentenceAt(position);
    if (!sentence.empty())
        WriteSentence(sentence, {Completion::Source::TextList, keys.lists.sentences.IndexOf(position)}, true);
    cycle.RunPrediction();
}

void CompletionController::WriteWord(const Text& word, const Origin& origin) {
    PlayMagic();
    const auto written = targets.Current()->GetCurrentWordLeft();
    Expect(Rest(word, written));
    CountCompletion(Completion::Kind::Word, origin, written.size());
    targets.Current()->WriteWord(word);
}

void CompletionController::WriteSentence(const Text& sentence, const Origin& origin, bool byRemainder) {
    PlayMagic();
    const auto left = targets.Current()->GetWrittenSentence();
    const auto written = TrimLeft(left);
    Expect(byRemainder ? targets.Current()->GetRemainder(sentence, written) : Text(Rest(sentence, written)));
    // A single word stands on sentence keys too, and counts as neither.
    if (const auto kind = KindOf(sentence); kind && *kind != Completion::Kind::Word)
        CountCompletion(*kind, origin, written.size());
    targets.Current()->WriteSentence(sentence);
}

void CompletionController::CompleteImage(COnScreenKeyIdentifier key) {
    // A copy: the cycle at the end writes another content on the key.
    const auto data = keyboard.Key(key).data;
    if (!targets.Current())
        return;
    if (HasPictograms(data.output)) {
        RemoveWhatPictogramReplaces(data.description);
        WritePictogramKey(key);
        return;
    }
    const auto kind = KindOf(data.output);
    if (!kind)
        return;
    if (*kind == Completion::Kind::Word)
        WriteWord(data.output, OriginOf(key));
    else
        WriteSentence(data.output, OriginOf(key), false);
    cycle.RunPrediction();
}

void CompletionController::RemoveWhatPictogramReplaces(TextView description) {
    auto& target = *targets.Current();
    if (IsSingleWord(description)) {
        target.DeleteCurrentWordLeft();
        return;
    }
    if (!IsWordSequence(description) && !IsSentence(description))
        return;
    if (WordsOnly(description).starts_with(WordsOnly(target.GetWrittenSentence())))
        target.DeleteCurrentSentenceLeft();
    else
        target.DeleteCurrentWordLeft();
}

void CompletionController::WritePictogramKey(COnScreenKeyIdentifier key) {
    if (!targets.IsInternal())
        return;
    const auto data = keyboard.Key(key).data;
    if (HasPictograms(data.output)) {
        const auto position = keys.lists.imageSentences.PositionOf(key);
        const auto standsFor = position
                                   ? keys.lists.imageSentenceKeyTexts[static_cast<std::size_t>(*position)]
                                   : "[" + data.description + "]";
        services.pictograms.Insert(data, standsFor, *targets.Internal());
    }
    learning.LearnFromKeyOutput(data.description);
    if (services.log.IsOpen()) {
        services.metrics.Count(CountPictograms(data.label) > 1 ? Metric::WrittenPictogramSentence
                                                               : Metric::WrittenPictogram);
        services.metrics.Count(Metric::Character, CountCharacters(data.description) + 1);
        services.metrics.Count(Metric::Word, CountWords(data.description));
        services.metrics.Count(Metric::Sentence, CountSentences(data.description));
    }
    cycle.RunPrediction();
}

CompletionController::Origin CompletionController::OriginOf(COnScreenKeyIdentifier key) const {
    if (const auto position = keys.lists.images.PositionOf(key))
        return {Completion::Source::Pictograms, keys.lists.images.IndexOf(*position)};
    const auto position = keys.lists.imageSentences.PositionOf(key);
    return {Completion::Source::PictogramSentences, keys.lists.imageSentences.IndexOf(position.value_or(0))};
}

void CompletionController::Expect(TextView typed) {
    state.pendingSimulatedKeys = keyboardSimulator.CountKeys(typed) + 1; // and the blank
}

void CompletionController::CountCompletion(Completion::Kind kind, const Origin& origin,
                                           std::size_t prefixLength) {
    if (services.log.IsOpen() && !targets.IsPassword())
        services.metrics.Completed({kind, origin.source, origin.position, static_cast<int>(prefixLength)});
}

void CompletionController::PlayMagic() {
    if (!profiles.Active().properties.IsOn(option::AGENTE_ACTIVO))
        return;
    services.agent.Play("DoMagic2");
    services.agent.Play("RestPose");
}

} // namespace ondrilo
