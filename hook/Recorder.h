#pragma once

#include "platform/Geometry.h"
#include "platform/x11/X11Connection.h"

#include <cstdint>
#include <functional>

namespace ondrilo {

/// A key, a button or a move of the pointer, for whichever program.
struct InputEvent {
    std::uint8_t type = 0;   ///< XCB_KEY_PRESS to XCB_MOTION_NOTIFY
    std::uint8_t detail = 0; ///< keycode or button
    std::uint16_t state = 0; ///< the core protocol's modifiers, buttons and layout before the event
    /// False for an event that came while the server held the keyboard back; and for one without modifiers
    /// while the pointer is in the screen's first corner, which looks the same.
    bool hasState = true;
    Point position; ///< of the pointer, in the server's pixels
};

/// The stream of all input of the server. Repeats of a held key come as presses alone.
class Recorder {
  public:
    Recorder();

    /// False if the server lacks an extension or is gone.
    [[nodiscard]] bool IsRecording() const { return isRecording && data.IsOpen(); }
    /// Either is readable when Read has work.
    [[nodiscard]] int Descriptor() const { return xcb_get_file_descriptor(data.Get()); }
    [[nodiscard]] int BellDescriptor() const { return xcb_get_file_descriptor(control.Get()); }
    /// Tells what has arrived. A change of the keyboard's map is told before the first key that was pressed
    /// after it.
    void Read(const std::function<void()>& mapChanged,
              const std::function<void(const InputEvent&)>& happened);

  private:
    [[nodiscard]] bool ListenForMapChanges();
    void ListenForBells();
    [[nodiscard]] bool Enable();
    void AnswerBells();
    [[nodiscard]] bool TakeMapChange();

    X11Connection control; ///< makes the record, and wakes the server
    X11Connection data;
    std::uint8_t keyboardEvent = 0;
    unsigned recording = 0; ///< the request that is answered again and again
    bool isRecording = false;
};

} // namespace ondrilo
