#pragma once

#include "app/KeyboardController.h"
#include "app/LoggingController.h"
#include "app/PredictionCycle.h"
#include "app/SpeechController.h"
#include "targets/CKeyboard.h"

#include <functional>

namespace ondrilo {

/// Runs what a key does beyond writing: commands, key sequences and programs.
class CommandController {
  public:
    using ChangeProfile = std::function<void(TextView)>;

    CommandController(const Environment& environment, CUserProfileSet& profiles, const Targets& targets,
                      const COnScreenKeyboard& keyboard, PredictionKeys& keys, PredictionCycle& cycle,
                      SpeechController& speech, KeyboardController& keyboards, LoggingController& logging,
                      WindowPlacement& placement, CKeyboard& keyboardSimulator, EventWriter& events,
                      SessionState& state, const SessionServices& services, ChangeProfile changeProfile);

    /// `key` holds a command in its output; one that the table does not know does nothing.
    void ExecuteCommand(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void ExecuteKeySequence(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void ExecuteProgram(COnScreenKeyIdentifier key, const ActionOrigin& origin);

  private:
    void ClearEditor();
    void DeleteWord();
    void DeleteSentence();
    void ShowNextPredictions();
    void SpeakWord(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void SpeakSentence(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void SpeakAll(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    void SendMessage();
    void SwitchLogging();
    /// Logs what was spoken, if anything was.
    void LogSpoken(COnScreenKeyIdentifier key, const ActionOrigin& origin, TextView what, TextView text);

    FrameWindow& frame;
    ProgramStarter& programs;
    CUserProfileSet& profiles;
    const Targets& targets;
    const COnScreenKeyboard& keyboard;
    PredictionKeys& keys;
    PredictionCycle& cycle;
    SpeechController& speech;
    KeyboardController& keyboards;
    LoggingController& logging;
    WindowPlacement& placement;
    CKeyboard& keyboardSimulator;
    EventWriter& events;
    SessionState& state;
    SessionServices services;
    ChangeProfile changeProfile;
};

} // namespace ondrilo
