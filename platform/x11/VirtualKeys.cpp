#include "platform/x11/VirtualKeys.h"

#include "targets/CKeyboard.h"

#include <xkbcommon/xkbcommon-keysyms.h>

namespace ondrilo {
namespace {

void AddModifiers(std::vector<int>& keys, unsigned missing) {
    for (const auto& [bit, code] : {std::pair{kShift, vk::Shift}, {kControl, vk::Control}, {kAlt, vk::Alt}})
        if ((missing & bit) != 0)
            keys.push_back(code);
}

bool IsOnNumericPad(Keysym symbol) {
    return symbol >= XKB_KEY_KP_Space && symbol <= XKB_KEY_KP_9;
}

} // namespace

std::vector<int> VirtualKeysOf(char c, unsigned modifiers, const KeyOfCharacter& keyOf) {
    std::vector<int> keys;
    const auto strokes = TypedCharacters({&c, 1});
    for (const char stroke : strokes) {
        const auto key = keyOf(stroke);
        if (!key)
            continue;
        if (strokes.size() > 1)
            AddModifiers(keys, key->shift & ~modifiers);
        keys.push_back(key->code);
    }
    if (keys.empty())
        keys.push_back(kUnknownKey);
    return keys;
}

std::vector<int> VirtualKeysOf(const KeySigns& signs, const KeyOfCharacter& keyOf) {
    const auto& [symbol, character, modifiers] = signs;
    const bool writes = character && static_cast<unsigned char>(*character) >= ' ';
    // The layout comes before the table of symbols: "/" can be a key of its own or Shift with another one.
    if (writes && !IsOnNumericPad(symbol))
        if (const auto key = keyOf(*character))
            return {key->code};
    // Counted like that for the characters that need it, and so counted back.
    if (symbol == XKB_KEY_ISO_Level3_Shift)
        return {vk::Control, vk::Alt};
    // A switch on the numeric pad stays the same key while a Shift waits for its letter.
    if (const auto code = VirtualKeyOf((modifiers & kShift) != 0 ? WithoutShift(symbol) : symbol))
        return {*code};
    if (!writes)
        return {kUnknownKey};
    return VirtualKeysOf(*character, modifiers, keyOf);
}

std::int32_t KeyDataOf(std::uint32_t keycode, bool isRelease, bool isRepeat) {
    // The X server counts keys from 8.
    std::uint32_t data = 1 | ((keycode - 8) & 0xFF) << 16;
    if (isRelease || isRepeat)
        data |= kKeyWasDown;
    if (isRelease)
        data |= kKeyIsReleased;
    return static_cast<std::int32_t>(data);
}

} // namespace ondrilo
