#pragma once

#include "keyboards/DwellPress.h"
#include "platform/DataFolder.h"
#include "platform/MessageQueue.h"
#include "platform/Sound.h"

#include <map>

namespace ondrilo {

/// The second argument of UM_KEY_PRESS.
enum class PressButton { Left = 0, Right = 1, Middle = 2 };

/// What a key does itself when the pointer presses it or rests on it: sound, press dot, lighting, dwell, and
/// the messages UM_KEY_PRESS and UM_KEY_HOVER with the packed address of the key. Only posts; whoever acts on
/// a press runs later.
class KeyActivation : private KeyboardObserver {
  public:
    /// `data` holds the key sound.
    KeyActivation(COnScreenKeyboard& keyboard, MessageQueue& queue, TimerService& timers, SoundPlayer& sounds,
                  const DataFolder& data);

    void Press(COnScreenKeyIdentifier key, PressButton button);
    /// The pointer came onto the key, moved there, or left it; positions on the screen.
    void PointerEntered(COnScreenKeyIdentifier key, Point position);
    void PointerMoved(COnScreenKeyIdentifier key, Point position);
    void PointerLeft(COnScreenKeyIdentifier key);
    /// The keys have other places, or are new, while the pointer is at `position`: what lies under it now
    /// waits for it to move.
    void KeysMoved(Point position);

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
    DwellPress dwell;
    RegistrationHandle observation;
};

} // namespace ondrilo
