#pragma once

#include "platform/Desktop.h"

#include <memory>

namespace ondrilo {

/// Top-level windows and their focus, over connections of its own to the X server. Without a server or a
/// window manager there is no foreground window and nothing happens.
class X11Windows {
  public:
    X11Windows();
    ~X11Windows();

    [[nodiscard]] WindowId ForegroundWindow() const;
    /// Brings to the front with the focus, also against the window manager's prevention of focus stealing.
    void Activate(WindowId window);
    [[nodiscard]] Text TitleOf(WindowId window, std::size_t limit) const;
    [[nodiscard]] bool IsOurs(WindowId window) const;

    [[nodiscard]] std::uint32_t ProcessOf(WindowId window) const;
    /// These two in the pixels of the server.
    [[nodiscard]] Rectangle ClientArea(WindowId window) const;
    [[nodiscard]] bool IsUnder(WindowId window, Point point) const;

    /// `changed` is called from ProcessEvents, once for each move of the focus to another window or to none.
    [[nodiscard]] RegistrationHandle OnFocusChange(std::function<void()> changed);
    /// Readable when ProcessEvents has work; -1 without a server.
    [[nodiscard]] int Descriptor() const;
    void ProcessEvents();

  private:
    class Implementation;
    std::unique_ptr<Implementation> implementation;
};

} // namespace ondrilo
