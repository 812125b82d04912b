#pragma once

#include "hook/KeyReader.h"
#include "platform/Geometry.h"
#include "platform/x11/X11Connection.h"

#include <functional>
#include <set>

namespace ondrilo {

/// Keeps chosen keys and the mouse buttons from the programs that would get them, over a connection of its
/// own: what it holds is free when the connection ends, however that comes about.
class Swallower {
  public:
    /// From now on just these. What another program has for itself stays with it.
    void SwallowKeys(std::set<KeyChord> chords);
    [[nodiscard]] bool Swallows(KeyChord chord) const { return keys.contains(chord); }
    /// Gives the keyboard back that the server holds for us from the press of a swallowed key to its release,
    /// and waits until it is free: what is typed then goes to the program again.
    void GiveKeyboardBack();

    void SwallowButtons(bool swallow);
    /// `isMeant` tells whether a press at that point of the screen is to be swallowed; others are passed on.
    void ProcessEvents(const std::function<bool(Point)>& isMeant);
    /// Readable when ProcessEvents has work.
    [[nodiscard]] int Descriptor() const { return xcb_get_file_descriptor(connection.Get()); }

  private:
    X11Connection connection;
    std::set<KeyChord> keys;
    bool swallowsButtons = false;
};

} // namespace ondrilo
