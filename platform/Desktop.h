#pragma once

#include "platform/Geometry.h"
#include "text/Text.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace ondrilo {

/// A top-level window of the desktop; 0 is none.
using WindowId = std::uintptr_t;

/// Dropping it ends the registration that gave it.
class Registration {
  public:
    virtual ~Registration() = default;
};
using RegistrationHandle = std::unique_ptr<Registration>;

/// Windows, focus and pointer of the whole desktop. Needs a window manager to be of use.
class Desktop {
  public:
    virtual ~Desktop() = default;
    [[nodiscard]] virtual WindowId ForegroundWindow() const = 0;
    virtual void Activate(WindowId window) = 0;
    /// Title in Windows-1252, cut at `limit` bytes.
    [[nodiscard]] virtual Text TitleOf(WindowId window, std::size_t limit = 1000) const = 0;
    [[nodiscard]] virtual bool IsOurs(WindowId window) const = 0;
    /// The process that the window belongs to; 0 if that cannot be told, and for a window that is gone.
    [[nodiscard]] virtual std::uint32_t ProcessOf(WindowId window) const = 0;
    /// The window's content on the screen, without decorations.
    [[nodiscard]] virtual Rectangle ClientArea(WindowId window) const = 0;
    /// True if the point of the screen shows the window, and no other one over it.
    [[nodiscard]] virtual bool IsUnder(WindowId window, Point point) const = 0;
    /// Calls `changed` on the user-interface thread after the focus of any program moved. Some desktops leave
    /// it nowhere for a moment between two windows, and that is told too.
    [[nodiscard]] virtual RegistrationHandle OnFocusChange(std::function<void()> changed) = 0;
    [[nodiscard]] virtual Point PointerPosition() const = 0;
    virtual void MovePointer(Point position) = 0;
    /// The usable area of the screen that holds `near`, or of the primary one.
    [[nodiscard]] virtual Rectangle ScreenArea(Point near) const = 0;
};

} // namespace ondrilo
