#pragma once

#include "platform/Keyboard.h"
#include "platform/x11/KeySymbols.h"

#include <array>
#include <map>
#include <memory>
#include <optional>

struct xkb_keymap;

namespace ondrilo {

using Keycode = std::uint8_t;

/// A key and the modifiers that must be down with it, as the core protocol's modifier bits.
struct KeyStroke {
    Keycode keycode = 0;
    unsigned modifiers = 0;
};

/// One layout of the server's keyboard, read backwards: from characters and virtual keys to keycodes.
class KeyboardMap {
  public:
    static constexpr unsigned kShiftBit = 1;
    static constexpr unsigned kLockBit = 2;

    /// `layout` is the group in effect, from 0.
    KeyboardMap(std::shared_ptr<xkb_keymap> keymap, unsigned layout);

    [[nodiscard]] unsigned Layout() const { return layout; }
    /// The key that writes the character at once; a dead key never does.
    [[nodiscard]] std::optional<KeyStroke> StrokeOf(char32_t character) const;
    [[nodiscard]] std::optional<LayoutKey> KeyOf(char c) const;
    /// The numeric pad may need Num Lock among the modifiers, where it is not on.
    [[nodiscard]] std::optional<KeyStroke> StrokeOfCode(int code, bool isNumLockOn) const;
    [[nodiscard]] Text NameOf(int code) const;

    [[nodiscard]] unsigned NumLockBit() const { return numLockBit; }
    /// That of AltGr.
    [[nodiscard]] unsigned LevelThreeBit() const { return levelThreeBit; }
    /// The modifier bits that a key sets while it is held; 0 for all others.
    [[nodiscard]] unsigned ModifiersOf(Keycode keycode) const { return modifiers[keycode]; }
    [[nodiscard]] bool IsModifier(Keycode keycode) const { return isModifier[keycode]; }
    /// A key of a letter, a digit, a sign or the blank.
    [[nodiscard]] bool Writes(Keycode keycode) const { return codeOfWritingKey.contains(keycode); }
    /// A key that sets these bits; nothing if none does.
    [[nodiscard]] std::optional<Keycode> ModifierKey(unsigned bits) const;

  private:
    void ReadModifiers();
    void ReadKey(Keycode keycode);
    void ReadWritingKey(Keycode keycode);
    void NumberWritingKeys();
    [[nodiscard]] std::optional<unsigned> ModifiersFor(Keycode keycode, unsigned level,
                                                       unsigned locked) const;
    [[nodiscard]] Keysym SymbolAt(Keycode keycode, unsigned level) const;
    [[nodiscard]] unsigned LayoutOf(Keycode keycode) const;

    struct Place {
        Keycode keycode = 0;
        unsigned level = 0;
    };
    std::shared_ptr<xkb_keymap> keymap;
    unsigned layout;
    unsigned levelThreeBit = 0;
    unsigned numLockBit = 0;
    std::array<unsigned, 256> modifiers{};
    std::array<bool, 256> isModifier{};
    std::map<Keysym, Place> symbols;          ///< of all keys, without and with Shift
    std::vector<Keycode> writingKeys;         ///< letters, digits and signs
    std::map<char32_t, KeyStroke> characters; ///< of the writing keys
    std::map<char, KeyStroke> accents;        ///< dead keys
    std::map<Keycode, int> codeOfWritingKey;
};

} // namespace ondrilo
