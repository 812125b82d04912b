#pragma once

#include "app/Countdown.h"
#include "app/KeySelection.h"
#include "app/ScanningController.h"
#include "app/WindowChrome.h"
#include "logging/WritingClock.h"
#include "platform/MessageQueue.h"

namespace ondrilo {

/// Gives each event of the session its meaning.
class InputRouter {
  public:
    InputRouter(const CUserProfileSet& profiles, const Targets& targets, COnScreenKeyboard& keyboard,
                PredictionKeys& keys, const SpecialKeys& specialKeys, KeySelection& keySelection,
                SelectionController& selections, AbbreviationController& abbreviations,
                SpeechController& speech, LearningController& learning, PreviewController& preview,
                KeySender& sender, ScanningController& scanning, WindowPlacement& placement,
                WindowChrome& chrome, Countdowns& countdowns, WritingClock& writingClock, EventWriter& events,
                SessionState& state, const SessionServices& services);

    void Handle(const MessageEvent& event);
    /// Keys that reach the view itself: so switches and the way back to the menu work without any target.
    void OnKeyDown(int code, std::int32_t keyData);
    void OnKeyUp(int code);

  private:
    void KeyDown(int code, std::int32_t keyData);
    void KeyUp(int code);
    void Dispatch(int code, std::int32_t keyData, bool simulated);
    bool SelectByHotKey(int code);
    /// 1 or 2; nothing if the code is no switch.
    [[nodiscard]] std::optional<int> SwitchOf(int code) const;
    bool SwitchDown(int code, std::int32_t keyData);
    bool SwitchUp(int code);
    void SpeakWordByKey(int code);
    void SpeakSentenceByKey(int code);
    void BringBackMenuAfterControl(int code);

    void ButtonDown(int button);
    void Character(char c);
    void WordEnd();
    void SentenceEnd();

    void KeyPress(COnScreenKeyIdentifier key, int button);
    void ScannedKey(COnScreenKeyIdentifier key);
    void Select(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void Hover(COnScreenKeyIdentifier key);
    void PersonIsActive();
    [[nodiscard]] bool IsOn(IntegerOption option) const { return profiles.Active().properties.IsOn(option); }
    void Count(Metric metric);

    const CUserProfileSet& profiles;
    const Targets& targets;
    COnScreenKeyboard& keyboard;
    PredictionKeys& keys;
    const SpecialKeys& specialKeys;
    KeySelection& keySelection;
    SelectionController& selections;
    AbbreviationController& abbreviations;
    SpeechController& speech;
    LearningController& learning;
    PreviewController& preview;
    KeySender& sender;
    ScanningController& scanning;
    WindowPlacement& placement;
    WindowChrome& chrome;
    Countdowns& countdowns;
    WritingClock& writingClock;
    EventWriter& events;
    SessionState& state;
    SessionServices services;
};

} // namespace ondrilo
