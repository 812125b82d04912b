#include "app/InputRouter.h"

#include "text/NormalForm.h"
#include "text/Splitter.h"

namespace ondrilo {

InputRouter::InputRouter(const CUserProfileSet& profiles, const Targets& targets, COnScreenKeyboard& keyboard,
                         PredictionKeys& keys, const SpecialKeys& specialKeys, KeySelection& keySelection,
                         SelectionController& selections, AbbreviationController& abbreviations,
                         SpeechController& speech, LearningController& learning, PreviewController& preview,
                         KeySender& sender, ScanningController& scanning, WindowPlacement& placement,
                         WindowChrome& chrome, Countdowns& countdowns, WritingClock& writingClock,
                         EventWriter& events, SessionState& state, const SessionServices& services)
    : profiles(profiles), targets(targets), keyboard(keyboard), keys(keys), specialKeys(specialKeys),
      keySelection(keySelection), selections(selections), abbreviations(abbreviations), speech(speech),
      learning(learning), preview(preview), sender(sender), scanning(scanning), placement(placement),
      chrome(chrome), countdowns(countdowns), writingClock(writingClock), events(events), state(state),
      services(services) {
}

void InputRouter::Handle(const MessageEvent& event) {
    const auto key = COnScreenKeyIdentifier::FromPacked(event.first);
    switch (event.message) {
    case Message::UM_KEY_DOWN:
        return KeyDown(event.first, event.second);
    case Message::UM_KEY_UP:
        return KeyUp(event.first);
    case Message::UM_LEFT_DOWN:
        return ButtonDown(0);
    case Message::UM_RIGHT_DOWN:
        return ButtonDown(1);
    case Message::UM_MIDDLE_DOWN:
        return ButtonDown(2);
    case Message::UM_LEFT_UP:
    case Message::UM_RIGHT_UP:
    case Message::UM_MIDDLE_UP:
        return countdowns.prediction.Restart();
    case Message::UM_POINTER_MOVED:
        return;
    case Message::UM_CHAR:
        return Character(static_cast<char>(event.first));
    case Message::UM_WORD_END:
        return WordEnd();
    case Message::UM_SENTENCE_END:
        return SentenceEnd();
    case Message::UM_KEY_PRESS:
        return KeyPress(key, event.second);
    case Message::UM_SCAN_KEY_SELECTED:
        return ScannedKey(key);
    case Message::UM_KEY_HOVER:
        return Hover(key);
    case Message::UM_KEY_DOUBLE_CLICK:
        return;
    case Message::UM_SCAN_ADVANCE:
    case Message::UM_SCAN_LINES:
    case Message::UM_SCAN_GROUPS:
    case Message::UM_SCAN_KEYS:
        return scanning.Step(event.message);
    case Message::UM_SCAN_LINE_SELECTED:
        return scanning.LineSelected(key);
    case Message::UM_SCAN_GROUP_SELECTED:
        return scanning.GroupSelected(key);
    case Message::UM_LAYOUT:
        return placement.LayOut();
    }
}

void InputRouter::PersonIsActive() {
    countdowns.idle.Restart();
    writingClock.Resume();
}

void InputRouter::Count(Metric metric) {
    if (events.IsOpen())
        services.metrics.Count(metric);
}

void InputRouter::KeyDown(int code, std::int32_t keyData) {
    PersonIsActive();
    countdowns.prediction.Stop();
    BringBackMenuAfterControl(code);
    if (IsOn(option::REGISTA_EVENTOS_CONTROLO))
        events.RawKey(code);
    // A switch interface that sends keys of the numeric pad must not take the preview away.
    const bool isNumericPad = (code >= vk::Num0 && code <= vk::NumDivide) || code == vk::NumLock;
    if (!isNumericPad)
        preview.HidePreview();
    const bool simulated = state.pendingSimulatedKeys >= 1;
    Count(simulated ? Metric::SystemKey : Metric::KeyPress);
    if (simulated)
        --state.pendingSimulatedKeys;
    Dispatch(code, keyData, simulated);
    state.lastKeyCode = code;
    events.UpdateContext();
}

void InputRouter::BringBackMenuAfterControl(int code) {
    if (state.lastKeyCode == vk::Control && code == vk::Shift)
        chrome.BringBackMenu();
}

void InputRouter::Dispatch(int code, std::int32_t keyData, bool simulated) {
    if (SwitchDown(code, keyData) || SelectByHotKey(code))
        return;
    if (code == specialKeys.expansionKey) {
        abbreviations.Press(ActionOrigin::Key(code));
    } else if (code == specialKeys.speakWordKey) {
        SpeakWordByKey(code);
    } else if (code == specialKeys.speakSentenceKey) {
        SpeakSentenceByKey(code);
    } else {
        events.TypedKey(code, simulated);
        countdowns.prediction.Restart();
    }
}

bool InputRouter::SelectByHotKey(int code) {
    const auto index = specialKeys.HotKeyIndex(code);
    const auto key = index ? keys.text.KeyOfHotKey(*index) : std::nullopt;
    if (!key)
        return false;
    if (keys.lists.words.PositionOf(*key))
        selections.SelectPredictedWordByHotKey(*key, code);
    else if (keys.lists.sentences.PositionOf(*key))
        selections.SelectPredictedSentenceByHotKey(*key, code);
    else // the key stood on a keyboard that has gone
        return false;
    return true;
}

std::optional<int> InputRouter::SwitchOf(int code) const {
    if (code == 0)
        return std::nullopt;
    if (code == specialKeys.switch1Key)
        return 1;
    return code == specialKeys.switch2Key ? std::optional(2) : std::nullopt;
}

bool InputRouter::SwitchDown(int code, std::int32_t keyData) {
    const auto number = SwitchOf(code);
    // A switch that is held goes down once, however often the desktop repeats its key.
    if (number && !Tells(keyData, kKeyWasDown))
        scanning.SwitchDown(*number);
    return number.has_value();
}

bool InputRouter::SwitchUp(int code) {
    const auto number = SwitchOf(code);
    if (number)
        scanning.SwitchUp(*number);
    return number.has_value();
}

void InputRouter::SpeakWordByKey(int code) {
    const auto spoken = speech.SpeakWordOrImage();
    if (events.IsOpen() && !spoken.text.empty())
        events.Action(ActionOrigin::Key(code),
                      Text(spoken.isImage ? "SYNTHESIZE_IMAGE_" : "SYNTHESIZE_WORD_") + spoken.text);
}

void InputRouter::SpeakSentenceByKey(int code) {
    const auto spoken = speech.SpeakCurrentSentence();
    if (events.IsOpen() && !spoken.empty())
        events.Action(ActionOrigin::Key(code), "SYNTHESIZE_SENTENCE_" + spoken);
}

void InputRouter::KeyUp(int code) {
    if (code == vk::Backspace || code == vk::Delete)
        Count(Metric::Correction);
    // A switch takes no part in the writing: the Shift that it has just chosen waits for a letter.
    if (SwitchUp(code))
        return;
    if (code == vk::CapsLock)
        sender.ShowModifiers();
    sender.ReleaseShift();
}

void InputRouter::OnKeyDown(int code, std::int32_t keyData) {
    PersonIsActive();
    if (IsOn(option::REGISTA_EVENTOS_CONTROLO))
        events.RawKey(code);
    SwitchDown(code, keyData);
    BringBackMenuAfterControl(code);
    state.lastKeyCode = code;
}

void InputRouter::OnKeyUp(int code) {
    SwitchUp(code);
}

void InputRouter::ButtonDown(int button) {
    if (IsOn(option::REGISTA_EVENTOS_CONTROLO))
        events.RawButton(button);
    Count(Metric::Click);
}

void InputRouter::Character(char c) {
    if (IsOn(option::OUVIR_LETRAS))
        speech.SpeakText(TextView(&c, 1));
    Count(Metric::Character);
    events.Character(c);
}

void InputRouter::WordEnd() {
    learning.LearnWord();
    countdowns.prediction.Restart();
    if (IsOn(option::OUVIR_PALAVRAS))
        speech.SpeakEndedWord();
    if (!events.IsOpen() || !targets.Current())
        return;
    const auto word = targets.Current()->GetPreviousWord();
    if (word.empty()) // its letters were written where nobody saw them
        return;
    Count(Metric::Word);
    events.Event("NEW_WORD", "WORD_" + word);
}

void InputRouter::SentenceEnd() {
    if (IsOn(option::OUVIR_FRASES))
        speech.SpeakEndedSentence();
    learning.LearnSentence();
    if (!events.IsOpen() || !targets.Current())
        return;
    const auto sentence = targets.Current()->GetPreviousSentence();
    if (Split(sentence, kTerminators).empty())
        return;
    events.Event("NEW_SENTENCE", "SENTENCE_" + CollapseWhiteSpace(sentence));
    Count(Metric::Sentence);
}

void InputRouter::KeyPress(COnScreenKeyIdentifier key, int button) {
    PersonIsActive();
    if (IsOn(option::REGISTA_EVENTOS_CONTROLO))
        events.RawButton(button);
    Count(Metric::Click);
    Count(Metric::ScreenKey);
    preview.HidePreview();
    if (button == 0)
        Select(key, ActionOrigin::OfMouse());
    events.UpdateContext();
}

void InputRouter::ScannedKey(COnScreenKeyIdentifier key) {
    PersonIsActive();
    Count(Metric::ScreenKey);
    scanning.KeySelected(key);
    Select(key, ActionOrigin::OfSwitch());
    events.UpdateContext();
}

void InputRouter::Select(COnScreenKeyIdentifier key, const ActionOrigin& origin) {
    const auto before = state.stages;
    keySelection.Select(key, origin);
    const bool isHalfDone = state.stages != before && !state.stages.AreNone();
    keyboard.SetHalfSelected(isHalfDone ? std::optional(key) : std::nullopt);
}

void InputRouter::Hover(COnScreenKeyIdentifier key) {
    const auto position = keys.lists.words.PositionOf(key);
    speech.SpeakText(position ? keys.text.WordAt(*position) : keyboard.Key(key).data.description);
}

} // namespace ondrilo
