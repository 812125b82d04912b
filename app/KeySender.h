#pragma once

#include "app/SessionState.h"
#include "keyboards/COnScreenKeyboard.h"
#include "targets/CKeyboard.h"

namespace ondrilo {

/// Sends the output of text keys, with a Shift that lasts for one key, and lights the keys of Shift and Caps
/// Lock by their state.
class KeySender {
  public:
    KeySender(CKeyboard& keyboardSimulator, COnScreenKeyboard& keyboard, SessionState& state);

    void SendKey(TextView output);
    /// Ends the one-shot Shift; nothing if it is not pending.
    void ReleaseShift();
    /// Lights the keys of Shift and Caps Lock as their states are now.
    void ShowModifiers();

  private:
    CKeyboard& keyboardSimulator;
    COnScreenKeyboard& keyboard;
    SessionState& state;
    bool shiftLatched = false;
};

} // namespace ondrilo
