#include "hook/KeyReader.h"

#include "text/CaseFolding.h"

#include <xkbcommon/xkbcommon-compose.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <cstdlib>

namespace ondrilo {
namespace {

constexpr unsigned kModifiers = 0xFF;
constexpr unsigned kLayoutShift = 13;
constexpr char kNoCharacter = '?'; // for what the code page lacks

unsigned LayoutOf(unsigned state) {
    return state >> kLayoutShift & 3;
}

unsigned ShiftOf(unsigned state) {
    return ((state & XCB_MOD_MASK_SHIFT) != 0 ? kShift : 0U) |
           ((state & XCB_MOD_MASK_CONTROL) != 0 ? kControl : 0U) |
           ((state & XCB_MOD_MASK_1) != 0 ? kAlt : 0U);
}

bool BeginsComposition(Keysym symbol) {
    constexpr Keysym kFirstDead = XKB_KEY_dead_grave;
    constexpr Keysym kLastDead = XKB_KEY_dead_longsolidusoverlay;
    return (symbol >= kFirstDead && symbol <= kLastDead) || symbol == XKB_KEY_Multi_key;
}

bool IsUtf8(std::string_view locale) {
    return locale.find("UTF-8") != std::string_view::npos || locale.find("utf8") != std::string_view::npos;
}

/// Composition is told in tables for each locale. The plain one has none, but programs may run with another.
std::string LocaleOfCompositions() {
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const char* locale = std::getenv(name); locale && *locale)
            return IsUtf8(locale) ? locale : "en_US.UTF-8";
    return "en_US.UTF-8";
}

} // namespace

KeyReader::KeyReader()
    : context(xkb_context_new(XKB_CONTEXT_NO_FLAGS), xkb_context_unref), keys(nullptr, xkb_state_unref),
      composition(nullptr, xkb_compose_state_unref) {
    xkb_x11_setup_xkb_extension(connection.Get(), XKB_X11_MIN_MAJOR_XKB_VERSION,
                                XKB_X11_MIN_MINOR_XKB_VERSION, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr,
                                nullptr, nullptr, nullptr);
}

void KeyReader::ForgetDeadKey() {
    if (composition)
        xkb_compose_state_reset(composition.get());
}

KeyReader::Reading KeyReader::ReadPress(Keycode keycode, unsigned state) {
    const KeySigns signs = SignsOf(keycode, state);
    Reading reading{CodesOf(signs), {}};
    if (!IsCommand(state))
        reading.characters = Compose(signs.symbol, PlainCharacter(keycode));
    return reading;
}

KeyReader::Reading KeyReader::ReadOurs(Keycode keycode, unsigned state, char meaning) {
    KeySigns signs = SignsOf(keycode, state);
    // Where the keycode has been lent anew since, the map tells of the next character.
    if (!signs.character || MakeLower(*signs.character) != MakeLower(meaning))
        signs = {XKB_KEY_NoSymbol, meaning, ShiftOf(state)};
    ForgetDeadKey();
    // Counted was what was asked for, whatever Caps Lock makes of it.
    return {CodesOf({signs.symbol, meaning, signs.modifiers}), {*signs.character}};
}

std::vector<int> KeyReader::CodesOf(Keycode keycode, unsigned state) {
    return CodesOf(SignsOf(keycode, state));
}

std::vector<int> KeyReader::CodesOf(const KeySigns& signs) const {
    return VirtualKeysOf(signs, [this](char c) { return map ? map->KeyOf(c) : std::nullopt; });
}

KeySigns KeyReader::SignsOf(Keycode keycode, unsigned state) {
    Use(LayoutOf(state));
    KeySigns signs{XKB_KEY_NoSymbol, std::nullopt, ShiftOf(state)};
    if (!keys)
        return signs;
    xkb_state_update_mask(keys.get(), state & kModifiers, 0, 0, 0, 0, LayoutOf(state));
    signs.symbol = xkb_state_key_get_one_sym(keys.get(), keycode);
    signs.character = AccentOfDeadKey(signs.symbol);
    if (!signs.character)
        signs.character = PlainCharacter(keycode);
    return signs;
}

/// What the key writes in the state that was asked for last. Delete has a character only by its number.
std::optional<char> KeyReader::PlainCharacter(Keycode keycode) const {
    constexpr char32_t kDelete = 0x7F;
    const char32_t point = keys ? xkb_state_key_get_utf32(keys.get(), keycode) : 0;
    if (point == 0 || point == kDelete)
        return std::nullopt;
    return static_cast<char>(Encode(point).value_or(kNoCharacter));
}

Text KeyReader::Compose(Keysym symbol, std::optional<char> plain) {
    const Text written = plain ? Text{*plain} : Text{};
    if (!IsComposing() && !BeginsComposition(symbol))
        return written;
    LoadCompositions();
    if (!composition)
        return written;
    xkb_compose_state_feed(composition.get(), symbol);
    switch (xkb_compose_state_get_status(composition.get())) {
    case XKB_COMPOSE_COMPOSING:
        return {};
    case XKB_COMPOSE_COMPOSED: {
        char utf8[32] = {};
        xkb_compose_state_get_utf8(composition.get(), utf8, sizeof utf8);
        ForgetDeadKey();
        return FromUtf8(utf8);
    }
    default:
        ForgetDeadKey();
        return written;
    }
}

bool KeyReader::IsComposing() const {
    return composition && xkb_compose_state_get_status(composition.get()) == XKB_COMPOSE_COMPOSING;
}

/// Takes some milliseconds, which only those spend who press dead keys.
void KeyReader::LoadCompositions() {
    if (composition)
        return;
    for (const auto& locale : {LocaleOfCompositions(), std::string("C.UTF-8")}) {
        const Handle<xkb_compose_table> table(
            xkb_compose_table_new_from_locale(context.get(), locale.c_str(), XKB_COMPOSE_COMPILE_NO_FLAGS),
            xkb_compose_table_unref);
        if (!table)
            continue;
        composition.reset(xkb_compose_state_new(table.get(), XKB_COMPOSE_STATE_NO_FLAGS));
        return;
    }
}

void KeyReader::Use(unsigned layout) {
    lastLayout = layout;
    if (isStale)
        ReadKeymap();
    isStale = false;
    if (keymap && (!map || map->Layout() != layout))
        map.emplace(keymap, layout);
}

void KeyReader::ReadKeymap() {
    auto* read = xkb_x11_keymap_new_from_device(context.get(), connection.Get(),
                                                xkb_x11_get_core_keyboard_device_id(connection.Get()),
                                                XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (!read)
        return;
    keymap = {read, xkb_keymap_unref};
    keys.reset(xkb_state_new(read));
    map.reset();
}

/// Modifiers with which a key still writes or steers the text.
unsigned KeyReader::TypingModifiers() const {
    constexpr unsigned kAlways = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_LOCK | XCB_MOD_MASK_CONTROL;
    return map ? kAlways | map->NumLockBit() | map->LevelThreeBit() : kAlways;
}

bool KeyReader::IsCommand(unsigned state) {
    Use(LayoutOf(state));
    return (state & kModifiers & ~TypingModifiers()) != 0;
}

std::set<KeyChord> KeyReader::ChordsOf(const std::set<int>& codes) {
    Use(lastLayout);
    std::set<KeyChord> chords;
    if (!keymap || codes.empty())
        return chords;
    const unsigned all = TypingModifiers();
    const auto isWanted = [&](int code) {
        return codes.contains(code);
    };
    for (unsigned keycode = xkb_keymap_min_keycode(keymap.get()); keycode <= kModifiers; ++keycode) {
        if (xkb_keymap_num_layouts_for_key(keymap.get(), keycode) == 0)
            continue;
        // All subsets of the modifiers, from the fullest to none.
        for (unsigned modifiers = all;; modifiers = (modifiers - 1) & all) {
            const auto key = static_cast<Keycode>(keycode);
            if (std::ranges::any_of(CodesOf(key, modifiers | lastLayout << kLayoutShift), isWanted))
                chords.insert({key, modifiers});
            if (modifiers == 0)
                break;
        }
    }
    return chords;
}

unsigned KeyReader::StateAfter(Keycode keycode, bool isPress, unsigned state) {
    Use(LayoutOf(state));
    const unsigned modifiers = map ? map->ModifiersOf(keycode) : 0;
    return isPress ? state | modifiers : state & ~modifiers;
}

} // namespace ondrilo
