#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "platform/Clock.h"
#include "platform/DataFolder.h"
#include "platform/MessageQueue.h"
#include "platform/Sound.h"

#include <map>

namespace ondrilo {

/// The second argument of UM_KEY_PRESS.
enum class PressButton { Left = 0, Right = 1, Middle = 2 };

/// What a key does itself when the pointer presses it or rests on it: sound, press dot, lighting, and the
/// messages UM_KEY_PRESS and UM_KEY_HOVER with the packed address of the key. Only posts; whoever acts on a
/// press runs later.
class KeyActivation : private KeyboardObserver {
  public:
    /// `data` holds the key sound.
    KeyActivation(COnScreenKeyboard& keyboard, MessageQueue& queue, TimerService& timers, SoundPlayer& sounds,
                  const DataFolder& data);

    void Press(COnScreenKeyIdentifier key, PressButton button);
    /// The pointer moved onto the key, or off it.
    void PointerEntered(COnScreenKeyIdentifier key);
    void PointerLeft(COnScreenKeyIdentifier key);

  private:
    void KeyChanged(COnScreenKeyIdentifier) override {}
    void KeysReplaced() override;
    void LayoutChanged() override {}

    void ShowPressDot(COnScreenKeyIdentifier key);
    void AskForHoverNotice(COnScreenKeyIdentifier key, Milliseconds delay);
    void HoverNotice(COnScreenKeyIdentifier key);
    void Post(Message message, COnScreenKeyIdentifier key, int second = 0);

    COnScreenKeyboard& keyboard;
    MessageQueue& queue;
    TimerService& timers;
    SoundPlayer& sounds;
    const DataFolder& data;

    int hoverCount = 0;
    std::unique_ptr<Timer> hoverTimer;
    std::map<COnScreenKeyIdentifier, std::unique_ptr<Timer>> dotTimers;
    RegistrationHandle observation;
};

} // namespace ondrilo
