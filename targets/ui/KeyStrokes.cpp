#include "targets/ui/KeyStrokes.h"

#include "platform/qt/QtConversion.h"
#include "platform/x11/KeySymbols.h"
#include "targets/CKeyboard.h"

#include <xkbcommon/xkbcommon-keysyms.h>

namespace ondrilo {
namespace {

void AddModifiers(std::vector<int>& keys, unsigned needed, Qt::KeyboardModifiers down) {
    const auto add = [&](unsigned bit, Qt::KeyboardModifier modifier, int code) {
        if ((needed & bit) != 0 && !down.testFlag(modifier))
            keys.push_back(code);
    };
    add(kShift, Qt::ShiftModifier, vk::Shift);
    add(kControl, Qt::ControlModifier, vk::Control);
    add(kAlt, Qt::AltModifier, vk::Alt);
}

} // namespace

std::vector<int> VirtualKeysOf(char c, Qt::KeyboardModifiers down, const KeyOutput& layout) {
    std::vector<int> keys;
    const auto strokes = TypedCharacters({&c, 1});
    for (const char stroke : strokes) {
        const auto key = layout.KeyOf(stroke);
        if (!key)
            continue;
        if (strokes.size() > 1)
            AddModifiers(keys, key->shift, down);
        keys.push_back(key->code);
    }
    if (keys.empty())
        keys.push_back(kUnknownKey);
    return keys;
}

std::vector<int> VirtualKeysOf(const QKeyEvent& event, const KeyOutput& layout) {
    const auto c = event.text().size() == 1 ? FromQString(event.text()).front() : '\0';
    const bool writes = static_cast<unsigned char>(c) >= ' ';
    // The layout comes before the table of symbols: "/" can be a key of its own or Shift with another one.
    if (writes && !event.modifiers().testFlag(Qt::KeypadModifier))
        if (const auto key = layout.KeyOf(c))
            return {key->code};
    // Counted like that for the characters that need it, and so counted back.
    if (event.nativeVirtualKey() == XKB_KEY_ISO_Level3_Shift)
        return {vk::Control, vk::Alt};
    // A switch on the numeric pad stays the same key while a Shift waits for its letter.
    const auto symbol = event.modifiers().testFlag(Qt::ShiftModifier) ? WithoutShift(event.nativeVirtualKey())
                                                                      : event.nativeVirtualKey();
    if (const auto code = VirtualKeyOf(symbol))
        return {*code};
    if (!writes)
        return {kUnknownKey};
    return VirtualKeysOf(c, event.modifiers(), layout);
}

std::int32_t KeyDataOf(const QKeyEvent& event) {
    const bool release = event.type() == QEvent::KeyRelease;
    // The X server counts keys from 8.
    std::uint32_t data = 1 | ((event.nativeScanCode() - 8) & 0xFF) << 16;
    if (release || event.isAutoRepeat())
        data |= 1U << 30;
    if (release)
        data |= 1U << 31;
    return static_cast<std::int32_t>(data);
}

} // namespace ondrilo
