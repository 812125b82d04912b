#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "platform/Clock.h"

namespace ondrilo {

/// Lights keys twice for 50 ms, with 50 ms between: 200 ms in all. Says "this one" without touching what
/// scanning has lit. A new flash ends the one before.
class KeyFlash : private KeyboardObserver {
  public:
    KeyFlash(COnScreenKeyboard& keyboard, TimerService& timers);

    void Flash(KeyIdentifiers keys);

  private:
    void KeyChanged(COnScreenKeyIdentifier) override {}
    void KeysReplaced() override;
    void LayoutChanged() override {}

    void SetFlashed(bool flashed);
    void Change();

    COnScreenKeyboard& keyboard;
    TimerService& timers;
    KeyIdentifiers keys;
    int changesLeft = 0;
    std::unique_ptr<Timer> timer;
    RegistrationHandle observation;
};

} // namespace ondrilo
