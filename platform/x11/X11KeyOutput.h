#pragma once

#include "platform/Keyboard.h"
#include "platform/x11/KeyboardMap.h"

#include <functional>
#include <memory>

namespace ondrilo {

/// Types into the focused window of the X server, over a connection of its own.
///
/// A character goes out as the key of the person's layout that writes it at once; a letter with an accent or
/// a sign that the layout has only behind dead keys, or not at all, goes out through one of the layout's
/// spare keycodes. Caps Lock and keys that we hold act on what is typed as they act on the person's typing;
/// modifiers that the person holds are lifted meanwhile. What we hold is released on every way out of the
/// process, a kill included.
class X11KeyOutput : public KeyOutput {
  public:
    /// When spare keycodes go to the Portuguese characters that the layout lacks. Each one changes the
    /// keyboard's map, which keeps a window manager and every other program busy for a while.
    enum class Lending {
        AtOnce,
        WhenAsked, ///< by LendNext, one a call; or when a character is typed that needs one
    };
    explicit X11KeyOutput(Lending lending = Lending::AtOnce);
    ~X11KeyOutput() override;

    /// False if there is no X server with the extensions needed; then nothing is typed.
    [[nodiscard]] bool IsAvailable() const;
    [[nodiscard]] std::optional<LayoutKey> KeyOf(char c) const override;
    void TypeCharacter(char c) override;
    void KeyDown(int code) override;
    void KeyUp(int code) override;
    [[nodiscard]] bool IsCapsLockOn() const override;
    /// False once all are lent; from then on a change of the keyboard has them lent anew at once.
    bool LendNext();

    /// A modifier of the person's that we lift or put back.
    static constexpr std::int32_t kSilent = -1;
    /// Told just before each press or release that stands for something else than its key. `meaning` is the
    /// Windows-1252 character that was asked for, of which Caps Lock and a held Shift may make another one,
    /// or kSilent. Everything told reaches the server's keyboard. Not told: the release before each press,
    /// which reaches it only where the person holds the key, and lets go of it for them.
    using Announce = std::function<void(Keycode keycode, bool isPress, std::int32_t meaning)>;
    void OnAnnounce(Announce announce);
    /// The name of a virtual key for the log: that of a special key, or what the key writes on the layout.
    [[nodiscard]] Text KeyName(int code) const override;

  private:
    class Implementation;
    std::unique_ptr<Implementation> implementation;
};

} // namespace ondrilo
