#pragma once

#include "platform/x11/VirtualKeys.h"
#include "platform/x11/X11Connection.h"

#include <compare>
#include <memory>
#include <set>
#include <string>
#include <vector>

struct xkb_compose_state;
struct xkb_context;
struct xkb_state;

namespace ondrilo {

/// A key together with the core protocol's modifiers.
struct KeyChord {
    Keycode keycode = 0;
    unsigned modifiers = 0;
    auto operator<=>(const KeyChord&) const = default;
};

/// Understands recorded keys as the programs do that get them: by the keyboard's map, by the modifiers, and
/// by the dead keys before. `state` is always that of a recorded event.
class KeyReader {
  public:
    KeyReader();

    /// To be told of a change; the next question reads the map anew.
    void ForgetMap() { isStale = true; }
    /// A dead key that waits for its letter will not get one.
    void ForgetDeadKey();

    struct Reading {
        std::vector<int> codes; ///< virtual keys, in the order in which they go down
        Text characters;
    };
    [[nodiscard]] Reading ReadPress(Keycode keycode, unsigned state);
    /// A key of ours that was to write `meaning`, of which Caps Lock or Shift may have made another letter.
    [[nodiscard]] Reading ReadOurs(Keycode keycode, unsigned state, char meaning);
    [[nodiscard]] std::vector<int> CodesOf(Keycode keycode, unsigned state);

    /// True with Alt, the logo key and the like: the key is a command to the desktop or to a menu.
    [[nodiscard]] bool IsCommand(unsigned state);
    /// All ways to press one of the virtual keys that are no commands.
    [[nodiscard]] std::set<KeyChord> ChordsOf(const std::set<int>& codes);
    /// The state after the key, as far as held modifiers go.
    [[nodiscard]] unsigned StateAfter(Keycode keycode, bool isPress, unsigned state);

  private:
    template <typename T>
    using Handle = std::unique_ptr<T, void (*)(T*)>;

    void Use(unsigned layout);
    void ReadKeymap();
    [[nodiscard]] unsigned TypingModifiers() const;
    [[nodiscard]] KeySigns SignsOf(Keycode keycode, unsigned state);
    [[nodiscard]] std::vector<int> CodesOf(const KeySigns& signs) const;
    [[nodiscard]] std::optional<char> PlainCharacter(Keycode keycode) const;
    [[nodiscard]] Text Compose(Keysym symbol, std::optional<char> plain);
    [[nodiscard]] bool IsComposing() const;
    void LoadCompositions();

    X11Connection connection;
    Handle<xkb_context> context;
    std::shared_ptr<xkb_keymap> keymap;
    std::optional<KeyboardMap> map;
    Handle<xkb_state> keys;
    Handle<xkb_compose_state> composition;
    unsigned lastLayout = 0;
    bool isStale = true;
};

} // namespace ondrilo
