#include "platform/x11/KeyboardMap.h"

#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <bit>
#include <set>
#include <string_view>

namespace ondrilo {
namespace {

/// Keys by their place on the board, as layouts name them: the rows AB to AE and their neighbours. Others may
/// write signs too (media keys with brackets), but no person has them.
bool IsWritingPlace(std::string_view name) {
    if (name == "TLDE" || name == "BKSL" || name == "LSGT" || name == "SPCE")
        return true;
    return name.size() == 4 && name[0] == 'A' && name[1] >= 'B' && name[1] <= 'E';
}

std::optional<int> DigitOf(Keysym symbol) {
    if (symbol < XKB_KEY_0 || symbol > XKB_KEY_9)
        return std::nullopt;
    return static_cast<int>(symbol);
}

bool HasFewer(const KeyStroke& first, const KeyStroke& second) {
    return std::popcount(first.modifiers) < std::popcount(second.modifiers);
}

template <typename Key>
void KeepSimplest(std::map<Key, KeyStroke>& strokes, Key key, KeyStroke stroke) {
    const auto [known, isNew] = strokes.emplace(key, stroke);
    if (!isNew && HasFewer(stroke, known->second))
        known->second = stroke;
}

} // namespace

KeyboardMap::KeyboardMap(std::shared_ptr<xkb_keymap> newKeymap, unsigned layout)
    : keymap(std::move(newKeymap)), layout(layout) {
    ReadModifiers();
    const auto first = std::max(xkb_keymap_min_keycode(keymap.get()), xkb_keycode_t{1});
    const auto last = std::min(xkb_keymap_max_keycode(keymap.get()), xkb_keycode_t{255});
    for (auto keycode = first; keycode <= last; ++keycode)
        ReadKey(static_cast<Keycode>(keycode));
    NumberWritingKeys();
    for (const auto& [character, code] : {std::pair{U'\n', vk::Enter}, std::pair{U'\t', vk::Tab}})
        if (const auto stroke = StrokeOfCode(code, false))
            characters[character] = *stroke;
}

void KeyboardMap::ReadModifiers() {
    const std::unique_ptr<xkb_state, decltype(&xkb_state_unref)> state(xkb_state_new(keymap.get()),
                                                                       xkb_state_unref);
    for (unsigned keycode = xkb_keymap_min_keycode(keymap.get()); keycode < modifiers.size(); ++keycode) {
        const Keysym symbol = SymbolAt(static_cast<Keycode>(keycode), 0);
        if (!IsHeldModifier(symbol) && symbol != XKB_KEY_Num_Lock)
            continue;
        xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
        const unsigned bits = xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_DEPRESSED) & 0xFF;
        xkb_state_update_key(state.get(), keycode, XKB_KEY_UP);
        if (symbol == XKB_KEY_Num_Lock) {
            // Pressing it locked it; the next press takes it back, so that the others are read without it.
            xkb_state_update_key(state.get(), keycode, XKB_KEY_DOWN);
            xkb_state_update_key(state.get(), keycode, XKB_KEY_UP);
            numLockBit = bits;
            continue;
        }
        isModifier[keycode] = true;
        modifiers[keycode] = bits;
        if (symbol == XKB_KEY_ISO_Level3_Shift)
            levelThreeBit = bits;
    }
}

void KeyboardMap::ReadKey(Keycode keycode) {
    constexpr unsigned kShifted = 1;
    for (unsigned level = 0; level <= kShifted; ++level)
        if (const Keysym symbol = SymbolAt(keycode, level); symbol != XKB_KEY_NoSymbol)
            symbols.try_emplace(symbol, Place{keycode, level});
    const char* name = xkb_keymap_key_get_name(keymap.get(), keycode);
    if (name && IsWritingPlace(name) && SymbolAt(keycode, 0) != XKB_KEY_NoSymbol)
        ReadWritingKey(keycode);
}

void KeyboardMap::ReadWritingKey(Keycode keycode) {
    writingKeys.push_back(keycode);
    const auto levels = xkb_keymap_num_levels_for_key(keymap.get(), keycode, LayoutOf(keycode));
    for (unsigned level = 0; level < levels; ++level) {
        const auto bits = ModifiersFor(keycode, level, 0);
        if (!bits)
            continue;
        const Keysym symbol = SymbolAt(keycode, level);
        if (const auto accent = AccentOfDeadKey(symbol))
            KeepSimplest(accents, *accent, {keycode, *bits});
        else if (const char32_t character = xkb_keysym_to_utf32(symbol); character != 0)
            KeepSimplest(characters, character, {keycode, *bits});
    }
}

/// Each writing key gets the code of its digit, its letter or its sign; where the table has none, or two keys
/// share one, the codes that are left go round in the order of the keys.
void KeyboardMap::NumberWritingKeys() {
    std::set<int> taken;
    for (const Keycode keycode : writingKeys) {
        const Keysym plain = SymbolAt(keycode, 0);
        auto code = DigitOf(plain);
        if (!code)
            code = DigitOf(SymbolAt(keycode, 1)); // digits may need Shift
        if (!code)
            code = VirtualKeyOf(plain);
        if (code && taken.insert(*code).second)
            codeOfWritingKey[keycode] = *code;
    }
    for (const Keycode keycode : writingKeys) {
        if (codeOfWritingKey.contains(keycode))
            continue;
        const auto& codes = LayoutDependentKeys();
        const auto free = std::ranges::find_if(codes, [&](int code) { return !taken.contains(code); });
        if (free == codes.end())
            return;
        taken.insert(*free);
        codeOfWritingKey[keycode] = *free;
    }
}

std::optional<KeyStroke> KeyboardMap::StrokeOf(char32_t character) const {
    const auto found = characters.find(character);
    if (found == characters.end())
        return std::nullopt;
    return found->second;
}

std::optional<LayoutKey> KeyboardMap::KeyOf(char c) const {
    auto stroke = StrokeOf(CodePointOf(c));
    const auto dead = accents.find(c);
    if (dead != accents.end() && (!stroke || !HasFewer(*stroke, dead->second)))
        stroke = dead->second;
    if (!stroke)
        return std::nullopt;
    const auto known = codeOfWritingKey.find(stroke->keycode);
    const auto code =
        known != codeOfWritingKey.end() ? known->second : VirtualKeyOf(SymbolAt(stroke->keycode, 0));
    if (!code)
        return std::nullopt;
    LayoutKey key{*code, kNoShift};
    if (stroke->modifiers & kShiftBit)
        key.shift |= ondrilo::kShift;
    if (stroke->modifiers & levelThreeBit)
        key.shift |= kControl | kAlt; // AltGr stands for both together
    return key;
}

std::optional<KeyStroke> KeyboardMap::StrokeOfCode(int code, bool isNumLockOn) const {
    for (const auto& [keycode, known] : codeOfWritingKey)
        if (known == code)
            return KeyStroke{keycode, 0};
    for (const Keysym symbol : SymbolsOf(code)) {
        const auto place = symbols.find(symbol);
        if (place == symbols.end())
            continue;
        const auto& [keycode, level] = place->second;
        const unsigned locked = isNumLockOn ? numLockBit : 0;
        if (const auto bits = ModifiersFor(keycode, level, locked))
            return KeyStroke{keycode, *bits};
    }
    return std::nullopt;
}

Text KeyboardMap::NameOf(int code) const {
    Text name = NameOfVirtualKey(code);
    if (!name.empty())
        return name;
    const auto stroke = StrokeOfCode(code, false);
    if (!stroke)
        return {};
    const Keysym symbol = SymbolAt(stroke->keycode, 0);
    if (const auto accent = AccentOfDeadKey(symbol))
        return {*accent};
    const auto character = Encode(xkb_keysym_to_utf32(symbol));
    return character && *character != 0 ? Text{static_cast<char>(*character)} : Text{};
}

std::optional<Keycode> KeyboardMap::ModifierKey(unsigned bits) const {
    const auto found = std::ranges::find(modifiers, bits);
    if (bits == 0 || found == modifiers.end())
        return std::nullopt;
    return static_cast<Keycode>(found - modifiers.begin());
}

/// The fewest modifiers, of Shift, AltGr and Num Lock, that give the level while those of `locked` are on.
std::optional<unsigned> KeyboardMap::ModifiersFor(Keycode keycode, unsigned level, unsigned locked) const {
    constexpr std::size_t kMostMasks = 32;
    xkb_mod_mask_t masks[kMostMasks];
    const auto count =
        xkb_keymap_key_get_mods_for_level(keymap.get(), keycode, LayoutOf(keycode), level, masks, kMostMasks);
    std::optional<unsigned> best;
    for (std::size_t i = 0; i < count; ++i) {
        if ((masks[i] & locked) != locked)
            continue;
        const unsigned bits = masks[i] & ~locked;
        const bool isPressable = (bits & ~(kShiftBit | levelThreeBit | numLockBit)) == 0;
        if (isPressable && (!best || std::popcount(bits) < std::popcount(*best)))
            best = bits;
    }
    // A key that does not heed the locked modifiers never names them.
    return best || locked == 0 ? best : ModifiersFor(keycode, level, 0);
}

Keysym KeyboardMap::SymbolAt(Keycode keycode, unsigned level) const {
    if (xkb_keymap_num_layouts_for_key(keymap.get(), keycode) == 0)
        return XKB_KEY_NoSymbol;
    const xkb_keysym_t* found = nullptr;
    const int count =
        xkb_keymap_key_get_syms_by_level(keymap.get(), keycode, LayoutOf(keycode), level, &found);
    return count == 1 ? found[0] : XKB_KEY_NoSymbol;
}

unsigned KeyboardMap::LayoutOf(Keycode keycode) const {
    return layout % std::max(xkb_keymap_num_layouts_for_key(keymap.get(), keycode), xkb_layout_index_t{1});
}

} // namespace ondrilo
