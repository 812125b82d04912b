#include "targets/ui/KeyStrokes.h"

#include "platform/qt/QtConversion.h"
#include "platform/x11/VirtualKeys.h"

namespace ondrilo {
namespace {

unsigned ShiftOf(Qt::KeyboardModifiers down) {
    return (down.testFlag(Qt::ShiftModifier) ? kShift : 0U) |
           (down.testFlag(Qt::ControlModifier) ? kControl : 0U) |
           (down.testFlag(Qt::AltModifier) ? kAlt : 0U);
}

KeyOfCharacter KeysOf(const KeyOutput& layout) {
    return [&layout](char c) {
        return layout.KeyOf(c);
    };
}

} // namespace

std::vector<int> VirtualKeysOf(char c, Qt::KeyboardModifiers down, const KeyOutput& layout) {
    return VirtualKeysOf(c, ShiftOf(down), KeysOf(layout));
}

std::vector<int> VirtualKeysOf(const QKeyEvent& event, const KeyOutput& layout) {
    KeySigns signs{event.nativeVirtualKey(), std::nullopt, ShiftOf(event.modifiers())};
    if (event.text().size() == 1)
        signs.character = FromQString(event.text()).front();
    return VirtualKeysOf(signs, KeysOf(layout));
}

std::int32_t KeyDataOf(const QKeyEvent& event) {
    return KeyDataOf(event.nativeScanCode(), event.type() == QEvent::KeyRelease, event.isAutoRepeat());
}

} // namespace ondrilo
