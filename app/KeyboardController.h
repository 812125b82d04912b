#pragma once

#include "app/Countdown.h"
#include "app/EventWriter.h"
#include "app/KeySender.h"
#include "app/PredictionKeys.h"
#include "app/ScanningController.h"
#include "app/SpeechController.h"
#include "app/WindowPlacement.h"

namespace ondrilo {

/// Opens and closes the on-screen keyboards of a session.
class KeyboardController {
  public:
    KeyboardController(const Environment& environment, CUserProfileSet& profiles, COnScreenKeyboard& keyboard,
                       PredictionKeys& keys, Predictions& predictions, WindowPlacement& placement,
                       KeySender& sender, SpeechController& speech, ScanningController& scanning,
                       EventWriter& events, Countdowns& countdowns, const SessionServices& services);

    /// A file that breaks off is told in the status line; what stands before that is on show.
    void LoadKeyboard(TextView name);
    /// To be called for each new keyboard: lights the keys whose state is on, and speaks its description.
    void Announce();
    /// Asks whether changes are to be kept, without a way back.
    void CloseKeyboard();
    /// The active keyboard of the profile, with the options as they are now.
    void Reopen();
    /// Goes on with the keyboard that a key links to, for this session only.
    void FollowKeyboardLink(COnScreenKeyIdentifier key, const ActionOrigin& origin);
    /// Lights the keys that turn the event log on and off.
    void ShowLoggingState();

  private:
    [[nodiscard]] bool WantsToKeepChanges();

    MessageQueue& queue;
    FrameWindow& frame;
    SessionWindows& windows;
    MessageBoxes& boxes;
    CUserProfileSet& profiles;
    COnScreenKeyboard& keyboard;
    PredictionKeys& keys;
    Predictions& predictions;
    WindowPlacement& placement;
    KeySender& sender;
    SpeechController& speech;
    ScanningController& scanning;
    EventWriter& events;
    Countdowns& countdowns;
    SessionServices services;
    std::unique_ptr<KeyboardWindow> keyboardWindow;
};

} // namespace ondrilo
