#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "platform/Clock.h"

#include <functional>

namespace ondrilo {

/// Presses a key on which the pointer has rested for the dwell time of the keyboard's settings, and shows on
/// the key how much of the time has passed. Only a pointer that moves starts it, so a key that comes to lie
/// under a pointer at rest is safe. After a press the pointer has to leave the key, unless its selection is
/// half done: then a second dwell confirms it. Positions are screen coordinates.
class DwellPress : private KeyboardObserver {
  public:
    using PressKey = std::function<void(COnScreenKeyIdentifier)>;

    DwellPress(COnScreenKeyboard& keyboard, TimerService& timers, PressKey press);

    void PointerEntered(COnScreenKeyIdentifier key, Point position);
    void PointerMoved(COnScreenKeyIdentifier key, Point position);
    void PointerLeft(COnScreenKeyIdentifier key);
    /// The keys have other places, or are new, while the pointer is at `position`.
    void KeysMoved(Point position);
    /// The key was pressed, by a dwell or in any other way.
    void Pressed(COnScreenKeyIdentifier key);

  private:
    void KeyChanged(COnScreenKeyIdentifier changed) override;
    void KeysReplaced() override;
    void LayoutChanged() override {}

    void Start();
    void Stop();
    void StartOver();
    void Tick();
    /// Whether the key does anything that is worth a press.
    [[nodiscard]] bool HasEffect() const;
    [[nodiscard]] bool MayRun() const;

    COnScreenKeyboard& keyboard;
    TimerService& timers;
    PressKey press;

    COnScreenKeyIdentifier key; ///< under the pointer, or the last one that was
    Point pointer;
    bool inside = false;
    bool pressed = false; ///< since the pointer entered it
    bool waitsForMove = false;
    COnScreenKeyData content; ///< of the key when the dwell began
    int steps = 0;
    std::unique_ptr<Timer> timer;
    RegistrationHandle observation;
};

} // namespace ondrilo
