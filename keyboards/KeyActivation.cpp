#include "keyboards/KeyActivation.h"

namespace ondrilo {
namespace {

constexpr Milliseconds kPressDotTime{300};
constexpr Milliseconds kHoverDelay{400};
constexpr Milliseconds kHoverRepeat{4000};

} // namespace

KeyActivation::KeyActivation(COnScreenKeyboard& keyboard, MessageQueue& queue, TimerService& timers,
                             SoundPlayer& sounds, const DataFolder& data)
    : keyboard(keyboard), queue(queue), timers(timers), sounds(sounds), data(data),
      dwell(keyboard, timers, [this](auto key) { Press(key, PressButton::Left); }),
      observation(keyboard.Observe(*this)) {
}

void KeyActivation::Press(COnScreenKeyIdentifier key, PressButton button) {
    if (keyboard.IsEditing() || !keyboard.Key(key).IsActive())
        return;
    if (button == PressButton::Left) {
        sounds.Play(keyboard.Settings().keySound ? data.Find("SomTecla.wav") : std::filesystem::path{});
        ShowPressDot(key);
    }
    Post(Message::UM_KEY_PRESS, key, static_cast<int>(button));
    // Last: until the press is handled, the key still reads as half selected by the press before.
    dwell.Pressed(key);
}

void KeyActivation::PointerEntered(COnScreenKeyIdentifier key, Point position) {
    if (keyboard.Key(key).hovered)
        return;
    keyboard.SetHovered(key, true);
    hoverCount = 0;
    AskForHoverNotice(key, kHoverDelay);
    dwell.PointerEntered(key, position);
}

void KeyActivation::PointerMoved(COnScreenKeyIdentifier key, Point position) {
    dwell.PointerMoved(key, position);
}

void KeyActivation::PointerLeft(COnScreenKeyIdentifier key) {
    dwell.PointerLeft(key);
    keyboard.SetHovered(key, false);
    hoverCount = 0;
    hoverTimer.reset();
}

void KeyActivation::KeysMoved(Point position) {
    dwell.KeysMoved(position);
}

void KeyActivation::KeysReplaced() {
    hoverCount = 0;
    hoverTimer.reset();
    dotTimers.clear();
}

void KeyActivation::ShowPressDot(COnScreenKeyIdentifier key) {
    keyboard.SetPressDot(key, true);
    dotTimers[key] = timers.After(kPressDotTime, [this, key] { keyboard.SetPressDot(key, false); });
}

void KeyActivation::AskForHoverNotice(COnScreenKeyIdentifier key, Milliseconds delay) {
    hoverTimer = timers.After(delay, [this, key] { HoverNotice(key); });
}

void KeyActivation::HoverNotice(COnScreenKeyIdentifier key) {
    if (hoverCount >= keyboard.Settings().hoverSpeechLimit)
        return;
    ++hoverCount;
    if (keyboard.Key(key).IsActive())
        Post(Message::UM_KEY_HOVER, key);
    AskForHoverNotice(key, kHoverRepeat);
}

void KeyActivation::Post(Message message, COnScreenKeyIdentifier key, int second) {
    queue.Post(message, key.Packed(), second);
}

} // namespace ondrilo
