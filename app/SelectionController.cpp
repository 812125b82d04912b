#include "app/SelectionController.h"

#include "keyboards/Pictograms.h"
#include "text/Classes.h"

namespace ondrilo {
namespace {

/// Name in the event log of a prediction of text; empty for one that is neither word, sequence nor sentence.
TextView StemOf(TextView text, bool isSentence) {
    if (!isSentence)
        return "PREDICTED_WORD";
    if (IsSentence(text))
        return "PREDICTED_SENTENCE";
    return IsWordSequence(text) ? "PREDICTED_WORD_SEQUENCE" : "";
}

/// Page and position of a prediction, both from 0, and the prediction itself, as the event log tells them.
Text Choice(int page, int position, TextView prediction) {
    return "_" + std::to_string(page) + "_" + std::to_string(position) + "_" + Text(prediction);
}

} // namespace

/// What tells apart the two lists of predicted pictograms.
struct SelectionController::ImageFamily {
    TextView spokenBefore, selected, spokenAfter; // in the event log
    PredictionKeyList PredictionKeyLists::*list;
    Metric count, position;
};

SelectionController::SelectionController(const CUserProfileSet& profiles, const CSystemOptions& systemOptions,
                                         const Targets& targets, const COnScreenKeyboard& keyboard,
                                         PredictionKeys& keys, CompletionController& completion,
                                         KeySender& sender, SpeechController& speech,
                                         PreviewController& preview, const CKeyboard& keyboardSimulator,
                                         EventWriter& events, SessionState& state,
                                         const SessionServices& services)
    : profiles(profiles), systemOptions(systemOptions), targets(targets), keyboard(keyboard), keys(keys),
      completion(completion), sender(sender), speech(speech), preview(preview),
      keyboardSimulator(keyboardSimulator), events(events), state(state), services(services) {
}

void SelectionController::SelectPredictedWord(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    SelectPredicted(MakeSelection(key, false, origin));
}

void SelectionController::SelectPredictedSentence(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    SelectPredicted(MakeSelection(key, true, origin));
}

void SelectionController::SelectPredicted(TextSelection selection) {
    selection.text = keyboard.Key(selection.key).data.output;
    if (!PassStages(selection))
        return;
    Complete(selection);
    if (SuggestionsGoAfterSelection())
        keys.ClearAll();
}

void SelectionController::SelectPredictedWordByHotKey(COnScreenKeyIdentifier key, int code) {
    auto selection = MakeSelection(key, false, ActionOrigin::Key(code));
    selection.text = keys.text.WordAt(selection.position);
    SelectByHotKey(selection, code);
}

void SelectionController::SelectPredictedSentenceByHotKey(COnScreenKeyIdentifier key, int code) {
    auto selection = MakeSelection(key, true, ActionOrigin::Key(code));
    selection.text = keys.text.SentenceAt(selection.position);
    SelectByHotKey(selection, code);
}

void SelectionController::SelectByHotKey(TextSelection& selection, int code) {
    if (!targets.Current())
        return;
    selection.followsItself = state.lastKeyCode == code;
    if (!PassStages(selection))
        return;
    Complete(selection);
    if (!SuggestionsGoAfterSelection())
        return;
    if (selection.isSentence)
        keys.ClearAll();
    else
        keys.ClearTexts();
}

SelectionController::TextSelection SelectionController::MakeSelection(COnScreenKeyIdentifier key,
                                                                      bool isSentence,
                                                                      const ActionOrigin& origin) const {
    const auto& list = isSentence ? keys.lists.sentences : keys.lists.words;
    TextSelection selection;
    selection.isSentence = isSentence;
    selection.page = list.page;
    selection.position = list.PositionOf(key).value_or(0);
    selection.key = key;
    selection.origin = origin;
    return selection;
}

bool SelectionController::PassStages(const TextSelection& selection) {
    auto isDone = [&selection](const Text& memory) {
        return memory == selection.text && selection.followsItself;
    };
    bool used = false;
    if (!isDone(state.stages.lastSpoken) && IsOn(option::OUVIR_ANTES_COMPLETAR)) {
        Log(selection, "SYNTHESIZE_", "_FROM_LIST_BEFORE_COMPLETATION");
        speech.SpeakText(selection.text);
        state.stages.lastSpoken = selection.text;
        used = true;
    }
    if (!isDone(state.stages.lastShown) && IsOn(option::VER_ANTES_COMPLETAR)) {
        Log(selection, "SHOW_", "_FROM_LIST_BEFORE_COMPLETATION");
        preview.ShowPreview(DisplayText(selection));
        state.stages.lastShown = selection.text;
        return false;
    }
    return !used;
}

void SelectionController::Complete(const TextSelection& selection) {
    Log(selection, "", "_SELECTION");
    if (IsOn(option::OUVIR_DEPOIS_COMPLETAR)) {
        Log(selection, "SYNTHESIZE_", "_FROM_LIST_AFTER_COMPLETATION");
        speech.SpeakText(selection.text);
    }
    if (!targets.Current())
        return;
    if (selection.isSentence)
        completion.CompleteSentence(selection.position);
    else
        completion.CompleteWord(selection.position);
    state.ForgetSelection();
}

Text SelectionController::DisplayText(const TextSelection& selection) const {
    const auto* target = targets.Current();
    if (!target)
        return selection.text;
    return selection.isSentence ? target->GetSentenceDisplayText(selection.text)
                                : target->GetWordDisplayText(selection.text);
}

void SelectionController::Log(const TextSelection& selection, TextView prefix, TextView suffix) {
    if (!events.IsOpen())
        return;
    const auto stem = StemOf(selection.text, selection.isSentence);
    if (stem.empty())
        return;
    const auto type = Text(prefix).append(stem).append(suffix);
    events.Action(selection.origin, type + Choice(selection.page, selection.position, selection.text),
                  selection.key);
}

void SelectionController::LogKey(const ActionOrigin& origin, COnScreenKeyIdentifier key, TextView type) {
    if (events.IsOpen())
        events.Action(origin, Text(type) + DetailsOf(key), key);
}

Text SelectionController::DetailsOf(COnScreenKeyIdentifier key) const {
    const auto& data = keyboard.Key(key).data;
    for (const auto* list : {&keys.lists.images, &keys.lists.imageSentences})
        if (const auto position = list->PositionOf(key))
            return Choice(list->page, *position, data.description);
    return "_" + (HasPictograms(data.output) ? data.description : data.output);
}

void SelectionController::SelectPredictedImage(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    SelectImage(key, origin,
                {"SYNTHESIZE_PREDICTED_IMAGE_FROM_LIST_BEFORE_COMPLETATION", "PREDICTED_IMAGE_SELECTION",
                 "SYNTHESIZE_PREDICTED_IMAGE_FROM_LIST_AFTER_COMPLETATION", &PredictionKeyLists::images,
                 Metric::PredictedPictogram, Metric::PredictedPictogramPosition});
}

void SelectionController::SelectPredictedImageSentence(COnScreenKeyIdentifier key,
                                                       const ActionOrigin& origin) {
    SelectImage(key, origin,
                {"SYNTHESIZE_PREDICTED_IMAGE_SENTENCE_FROM_LIST_BEFORE_COMPLETATION",
                 "PREDICTED_IMAGE_SENTENCE_SELECTION",
                 "SYNTHESIZE_PREDICTED_IMAGE_SENTENCE_FROM_LIST_AFTER_COMPLETATION",
                 &PredictionKeyLists::imageSentences, Metric::PredictedPictogramSentence,
                 Metric::PredictedPictogramSentencePosition});
}

void SelectionController::SelectImage(COnScreenKeyIdentifier key, const ActionOrigin& origin,
                                      const ImageFamily& family) {
    const auto description = keyboard.Key(key).data.description;
    if (HearFirst(description, key, origin, family.spokenBefore))
        return;
    LogKey(origin, key, family.selected);
    if (events.IsOpen()) {
        const auto& list = keys.lists.*family.list;
        services.metrics.Count(family.count);
        services.metrics.Count(family.position, list.IndexOf(list.PositionOf(key).value_or(0)));
    }
    if (IsOn(option::OUVIR_DEPOIS_COMPLETAR)) {
        LogKey(origin, key, family.spokenAfter);
        speech.SpeakText(description);
    }
    completion.CompleteImage(key);
    state.ForgetSelection();
    if (SuggestionsGoAfterSelection())
        keys.ClearAll();
}

void SelectionController::SelectPictogramKey(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    const auto data = keyboard.Key(key).data;
    const bool several = CountPictograms(data.label) > 1;
    if (events.IsOpen())
        services.metrics.Count(several ? Metric::SelectedPictogramSentence : Metric::SelectedPictogram);
    if (HearFirst(data.description, key, origin,
                  several ? "SYNTHESIZE_IMAGE_SENTENCE_KEY_BEFORE_SELECTION"
                          : "SYNTHESIZE_IMAGE_KEY_BEFORE_SELECTION"))
        return;
    completion.WritePictogramKey(key);
    LogKey(origin, key, several ? "IMAGE_SENTENCE_KEY_SELECTION" : "IMAGE_KEY_SELECTION");
    HearAfter(data.description, key, origin,
              several ? "SYNTHESIZE_IMAGE_SENTENCE_KEY_AFTER_SELECTION"
                      : "SYNTHESIZE_IMAGE_KEY_AFTER_SELECTION");
    state.ForgetSelection();
}

bool SelectionController::HearFirst(const Text& description, COnScreenKeyIdentifier key,
                                    const ActionOrigin& origin, TextView event) {
    if (state.stages.lastSpoken == description || !IsOn(option::OUVIR_ANTES_COMPLETAR))
        return false;
    LogKey(origin, key, event);
    speech.SpeakText(description);
    state.stages.lastSpoken = description;
    return true;
}

void SelectionController::HearAfter(const Text& description, COnScreenKeyIdentifier key,
                                    const ActionOrigin& origin, TextView event) {
    if (!IsOn(option::OUVIR_DEPOIS_COMPLETAR))
        return;
    speech.SpeakText(description);
    LogKey(origin, key, event);
}

void SelectionController::SelectTextKey(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    const auto data = keyboard.Key(key).data;
    const bool heard = HearFirst(data.description, key, origin, "SYNTHESIZE_TEXT_KEY_BEFORE_SELECTION");
    if (state.stages.lastShown != data.output && IsOn(option::VER_ANTES_COMPLETAR)) {
        ShowTextKey(data, key, origin);
        state.stages.lastShown = data.output;
        return;
    }
    if (heard)
        return;
    if (targets.Current()) {
        sender.SendKey(data.output);
        LogKey(origin, key, "TEXT_KEY_SELECTION");
    }
    HearAfter(data.description, key, origin, "SYNTHESIZE_TEXT_KEY_AFTER_SELECTION");
    state.ForgetSelection();
}

void SelectionController::ShowTextKey(const COnScreenKeyData& data, COnScreenKeyIdentifier key,
                                      const ActionOrigin& origin) {
    if (keyboardSimulator.IsPrintingKey(data.output)) {
        LogKey(origin, key, "SHOW_TEXT_KEY_BEFORE_SELECTION");
        const auto* target = targets.Current();
        preview.ShowPreview(target ? target->AdaptWordCase(data.output) : data.output);
        return;
    }
    if (IsOn(option::OUVIR_ANTES_COMPLETAR))
        return;
    // Nothing to show, as with "Enter": it is heard instead.
    LogKey(origin, key, "SYNTHESIZE_TEXT_KEY_BEFORE_SELECTION");
    speech.SpeakText(data.description);
}

bool SelectionController::SuggestionsGoAfterSelection() const {
    return services.cooperation.IsUp() && systemOptions.IsOn(system_option::LIMPAR_SUGESTOES_APOS_SELECCAO);
}

} // namespace ondrilo
