#pragma once

#include "platform/x11/KeyboardMap.h"
#include "platform/x11/PersonsKeys.h"
#include "platform/x11/X11Connection.h"

#include <functional>
#include <memory>
#include <optional>

struct xkb_context;
struct xkb_keymap;

namespace ondrilo {

struct KeyboardState {
    unsigned base = 0; ///< modifiers of keys that are down
    unsigned locked = 0;
};

/// What the server says of its keyboard. It is told by events what changes, so that most questions need not
/// go there.
class KeyboardWatch {
  public:
    explicit KeyboardWatch(const X11Connection& connection);

    /// False if the server lacks the keyboard extension.
    [[nodiscard]] bool IsAvailable() const { return isAvailable; }
    /// Asks the server.
    [[nodiscard]] KeyboardState Look();
    /// The layout in effect, from 0.
    [[nodiscard]] unsigned Layout();
    /// The symbols of all keys, if they have changed since the last answer; a change of a keycode that
    /// `isOurs` does not count.
    [[nodiscard]] std::shared_ptr<xkb_keymap> NewKeymap(const std::function<bool(Keycode)>& isOurs);

  private:
    void Listen() const;
    void Notice(const xcb_generic_event_t& event);
    [[nodiscard]] std::shared_ptr<xkb_keymap> ReadKeymap() const;

    const X11Connection& connection;
    std::unique_ptr<xkb_context, void (*)(xkb_context*)> context;
    std::optional<std::uint8_t> typingDevice;
    std::uint8_t keyboardEvent = 0;
    bool isAvailable = false;
    unsigned layout = 0;
    bool isWholeMapNew = true;
    Keycodes changed;
};

} // namespace ondrilo
