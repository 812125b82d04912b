#include "app/KeySender.h"

#include <utility>

namespace ondrilo {
namespace {

constexpr TextView kShiftKey = "Shift";
constexpr TextView kCapsLockKey = "CapsLock";

} // namespace

KeySender::KeySender(CKeyboard& keyboardSimulator, COnScreenKeyboard& keyboard, SessionState& state)
    : keyboardSimulator(keyboardSimulator), keyboard(keyboard), state(state) {
}

void KeySender::SendKey(TextView output) {
    state.pendingSimulatedKeys = keyboardSimulator.CountKeys(output);
    if (output != kShiftKey) {
        keyboardSimulator.SendKey(output);
        return;
    }
    if (shiftLatched) {
        ReleaseShift();
        return;
    }
    keyboardSimulator.PressKey(kShiftKey);
    shiftLatched = true;
    keyboard.LightByOutput(kShiftKey, true);
}

void KeySender::ReleaseShift() {
    if (!std::exchange(shiftLatched, false))
        return;
    keyboardSimulator.ReleaseKey(kShiftKey);
    keyboard.LightByOutput(kShiftKey, false);
}

void KeySender::ShowModifiers() {
    keyboard.LightByOutput(kCapsLockKey, keyboardSimulator.IsCapsLockOn());
    keyboard.LightByOutput(kShiftKey, shiftLatched);
}

} // namespace ondrilo
