#pragma once

#include "platform/Desktop.h"
#include "platform/x11/X11Windows.h"

#include <QSocketNotifier>

#include <optional>

namespace ondrilo {

/// The desktop: windows and focus from the X server, pointer and screens from Qt, which knows the scale
/// factor and with it the logical pixels.
class QtDesktop : public Desktop {
  public:
    QtDesktop();
    [[nodiscard]] WindowId ForegroundWindow() const override { return windows.ForegroundWindow(); }
    void Activate(WindowId window) override { windows.Activate(window); }
    [[nodiscard]] Text TitleOf(WindowId window, std::size_t limit = 1000) const override;
    [[nodiscard]] bool IsOurs(WindowId window) const override { return windows.IsOurs(window); }
    [[nodiscard]] std::uint32_t ProcessOf(WindowId window) const override {
        return windows.ProcessOf(window);
    }
    [[nodiscard]] Rectangle ClientArea(WindowId window) const override;
    [[nodiscard]] bool IsUnder(WindowId window, Point point) const override;
    [[nodiscard]] RegistrationHandle OnFocusChange(std::function<void()> changed) override;
    [[nodiscard]] Point PointerPosition() const override;
    void MovePointer(Point position) override;
    [[nodiscard]] Rectangle ScreenArea(Point near) const override;

  private:
    X11Windows windows;
    std::optional<QSocketNotifier> events;
};

} // namespace ondrilo
