#pragma once

#include "app/CompletionController.h"
#include "app/EventWriter.h"
#include "app/KeySender.h"
#include "app/PreviewController.h"
#include "app/SpeechController.h"
#include "profiles/CSystemOptions.h"

namespace ondrilo {

/// Selections that can be heard and seen before they are done: each press of a key does the stages that are
/// due, and the next press of the same key goes on.
class SelectionController {
  public:
    SelectionController(const CUserProfileSet& profiles, const CSystemOptions& systemOptions,
                        const Targets& targets, const COnScreenKeyboard& keyboard, PredictionKeys& keys,
                        CompletionController& completion, KeySender& sender, SpeechController& speech,
                        PreviewController& preview, const CKeyboard& keyboardSimulator, EventWriter& events,
                        SessionState& state, const SessionServices& services);

    void SelectPredictedWord(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void SelectPredictedSentence(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    /// `code` is the hot key's own, `key` the one that it stands for.
    void SelectPredictedWordByHotKey(COnScreenKeyIdentifier key, int code);
    void SelectPredictedSentenceByHotKey(COnScreenKeyIdentifier key, int code);
    void SelectPredictedImage(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void SelectPredictedImageSentence(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void SelectTextKey(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void SelectPictogramKey(COnScreenKeyIdentifier key, const ActionOrigin& origin);

  private:
    /// A prediction of text that is being selected.
    struct TextSelection {
        Text text;
        bool isSentence = false; ///< of the sentence keys
        int page = 0;
        int position = 0; ///< on the page
        COnScreenKeyIdentifier key;
        ActionOrigin origin;
        /// False if a key came between: then no stage of before counts.
        bool followsItself = true;
    };
    [[nodiscard]] TextSelection MakeSelection(COnScreenKeyIdentifier key, bool isSentence,
                                              const ActionOrigin& origin) const;
    void SelectPredicted(TextSelection selection);
    void SelectByHotKey(TextSelection& selection, int code);
    /// The stages before the writing; true if the selection is to be carried out now.
    bool PassStages(const TextSelection& selection);
    void Complete(const TextSelection& selection);
    /// `prefix` and `suffix` stand around the name of what is selected.
    void Log(const TextSelection& selection, TextView prefix, TextView suffix);
    /// A key that is no text prediction, with its details.
    void LogKey(const ActionOrigin& origin, COnScreenKeyIdentifier key, TextView type);
    [[nodiscard]] Text DetailsOf(COnScreenKeyIdentifier key) const;
    [[nodiscard]] Text DisplayText(const TextSelection& selection) const;

    struct ImageFamily;
    void SelectImage(COnScreenKeyIdentifier key, const ActionOrigin& origin, const ImageFamily& family);
    /// Hears a key's description if that stage is due; true if it was.
    bool HearFirst(const Text& description, COnScreenKeyIdentifier key, const ActionOrigin& origin,
                   TextView event);
    void HearAfter(const Text& description, COnScreenKeyIdentifier key, const ActionOrigin& origin,
                   TextView event);
    void ShowTextKey(const COnScreenKeyData& data, COnScreenKeyIdentifier key, const ActionOrigin& origin);
    [[nodiscard]] bool SuggestionsGoAfterSelection() const;
    [[nodiscard]] bool IsOn(IntegerOption option) const { return profiles.Active().properties.IsOn(option); }

    const CUserProfileSet& profiles;
    const CSystemOptions& systemOptions;
    const Targets& targets;
    const COnScreenKeyboard& keyboard;
    PredictionKeys& keys;
    CompletionController& completion;
    KeySender& sender;
    SpeechController& speech;
    PreviewController& preview;
    const CKeyboard& keyboardSimulator;
    EventWriter& events;
    SessionState& state;
    SessionServices services;
};

} // namespace ondrilo
