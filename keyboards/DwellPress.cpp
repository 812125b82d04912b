#include "keyboards/DwellPress.h"

#include <utility>

namespace ondrilo {
namespace {

constexpr int kStep = 25; // ms

} // namespace

DwellPress::DwellPress(COnScreenKeyboard& keyboard, TimerService& timers, PressKey press)
    : keyboard(keyboard), timers(timers), press(std::move(press)), observation(keyboard.Observe(*this)) {
}

void DwellPress::PointerEntered(COnScreenKeyIdentifier entered, Point position) {
    // A window that came and went over the key is no leaving of it.
    if (entered != key || position != pointer)
        pressed = false;
    key = entered;
    inside = true;
    waitsForMove = position == pointer;
    pointer = position;
    if (!waitsForMove)
        Start();
}

void DwellPress::PointerMoved(COnScreenKeyIdentifier moved, Point position) {
    if (!inside || moved != key || position == pointer)
        return;
    pointer = position;
    const bool waited = std::exchange(waitsForMove, false);
    if (waited || !timer)
        Start();
}

void DwellPress::PointerLeft(COnScreenKeyIdentifier left) {
    if (!inside || left != key)
        return;
    Stop();
    inside = false;
}

void DwellPress::KeysMoved(Point position) {
    if (!inside && position != pointer)
        pressed = false;
    pointer = position;
    // The next tick ends a dwell that runs: a layout is no moment to change keys.
    waitsForMove = true;
}

void DwellPress::Pressed(COnScreenKeyIdentifier pressedKey) {
    if (!inside || pressedKey != key)
        return;
    Stop();
    pressed = true;
}

void DwellPress::KeyChanged(COnScreenKeyIdentifier changed) {
    if (changed == key && pressed && !timer && !waitsForMove)
        Start();
}

void DwellPress::KeysReplaced() {
    timer.reset();
    steps = 0;
    inside = false;
    pressed = false;
}

void DwellPress::Start() {
    Stop();
    if (!MayRun())
        return;
    content = keyboard.Key(key).data;
    timer = timers.Start(Milliseconds{kStep}, [this] { Tick(); });
}

void DwellPress::Stop() {
    StartOver();
    timer.reset();
}

void DwellPress::StartOver() {
    if (std::exchange(steps, 0) > 0)
        keyboard.SetDwell(key, 0);
}

void DwellPress::Tick() {
    // What fills an empty key again must not find the pointer waiting.
    waitsForMove = waitsForMove || !HasEffect();
    if (waitsForMove || !MayRun()) {
        Stop();
        return;
    }
    // Looked at here and not when the key changes: predictions are shown anew by emptying their keys first.
    if (const auto& now = keyboard.Key(key).data; now != content) {
        content = now;
        StartOver();
        return;
    }
    const int passed = ++steps * kStep;
    if (passed < keyboard.Settings().dwellTime) {
        keyboard.SetDwell(key, static_cast<double>(passed) / keyboard.Settings().dwellTime);
        return;
    }
    Stop();
    press(key);
}

bool DwellPress::HasEffect() const {
    const auto& shown = keyboard.Key(key);
    return shown.IsActive() && shown.Type() != KeyType::Empty &&
           (!IsPrediction(shown.Type()) || !shown.data.output.empty());
}

bool DwellPress::MayRun() const {
    return inside && keyboard.Settings().dwellTime > 0 && !keyboard.IsEditing() && HasEffect() &&
           (!pressed || keyboard.HalfSelected() == key);
}

} // namespace ondrilo
