#pragma once

#include "platform/x11/KeyboardMap.h"
#include "platform/x11/PersonsKeys.h"
#include "platform/x11/X11Connection.h"

#include <chrono>
#include <functional>
#include <vector>

namespace ondrilo {

/// So long after a press a program may still fetch the keyboard's map to understand it.
inline constexpr std::chrono::milliseconds kLateReaders{300};

/// The keycodes to which the layout gives nothing, lent to characters that it lacks: a letter and its
/// capital, or two signs, on one keycode. They stay lent for the whole run, since programs fetch the
/// keyboard's map late. What is lent stands in a property of the root window too, by which the next run
/// recognises what a killed one left behind.
///
/// Where a text needs more strange signs than there are spare keycodes (about twenty), typing waits for the
/// readers before it lends one anew. A window of our own reads only when the handler that types has returned,
/// and so would still get them wrong; Portuguese needs fewer.
class SpareKeys {
  public:
    explicit SpareKeys(const X11Connection& connection);

    /// Finds the spare keycodes anew, after the start or a change of the keyboard.
    void Attach();
    /// Lends a keycode to the next of the Portuguese letters and signs that `canWrite` does not know; false
    /// if there is none left to lend.
    bool LendNext(const std::function<bool(char32_t)>& canWrite);
    /// The key that counts for a character which the layout lacks: one of no known place, with Shift for the
    /// second of its pair. None for what counts as an accent and a letter, and for the accents themselves.
    [[nodiscard]] static std::optional<LayoutKey> KeyOf(char c);
    /// The stroke for a character, newly lent where necessary.
    [[nodiscard]] std::optional<KeyStroke> StrokeOf(char c);
    /// Waits, where the keycode has been lent only just, until programs can have noticed; false if there was
    /// nothing to wait for.
    bool Settle(Keycode keycode) const;
    [[nodiscard]] bool IsLent(Keycode keycode) const;
    /// Takes everything back.
    void Detach();

  private:
    struct Pair {
        Keysym plain = 0;
        Keysym shifted = 0;
        bool operator==(const Pair&) const = default;
    };
    struct Spare {
        Keycode keycode = 0;
        Pair lent;
        std::chrono::steady_clock::time_point since;
        std::chrono::steady_clock::time_point lastUse;
    };
    static Pair PairOf(char c);
    static bool IsPlain(char c);
    [[nodiscard]] std::vector<Spare> ReadLent() const;
    [[nodiscard]] Keycodes KeycodesWithModifiers() const;
    Spare* Find(const Pair& pair);
    Spare* LeastUsed();
    void Lend(Spare& spare, const Pair& pair);
    void WriteRecord() const;

    const X11Connection& connection;
    std::vector<Spare> spares;
    xcb_atom_t record;
};

} // namespace ondrilo
