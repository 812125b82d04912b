#include "keyboards/KeyFlash.h"

namespace ondrilo {
namespace {

constexpr Milliseconds kHalf{50};
constexpr int kChanges = 4; // lit, dark, lit, dark

} // namespace

KeyFlash::KeyFlash(COnScreenKeyboard& keyboard, TimerService& timers)
    : keyboard(keyboard), timers(timers), observation(keyboard.Observe(*this)) {
}

void KeyFlash::Flash(KeyIdentifiers newKeys) {
    SetFlashed(false);
    keys = std::move(newKeys);
    changesLeft = kChanges;
    Change();
}

void KeyFlash::KeysReplaced() {
    timer.reset();
    keys.clear();
}

void KeyFlash::SetFlashed(bool flashed) {
    for (const auto& key : keys)
        keyboard.SetFlashed(key, flashed);
}

void KeyFlash::Change() {
    SetFlashed(changesLeft % 2 == 0);
    --changesLeft;
    timer = changesLeft > 0 ? timers.After(kHalf, [this] { Change(); }) : nullptr;
}

} // namespace ondrilo
