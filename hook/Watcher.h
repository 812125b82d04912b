#pragma once

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11Windows.h"

namespace ondrilo {

/// Knows which windows belong to the watched program.
class Watcher {
  public:
    explicit Watcher(WindowId target);

    /// Whether a window of the program has the focus, as of the last ProcessEvents.
    [[nodiscard]] bool IsActive() const { return isActive; }
    /// Whether that point of the screen shows a window of the program.
    [[nodiscard]] bool IsAt(Point point) const;

    /// Readable when ProcessEvents has work.
    [[nodiscard]] int Descriptor() const { return windows.Descriptor(); }
    void ProcessEvents() { windows.ProcessEvents(); }

  private:
    void LookForFocus();

    X11Windows windows;
    X11Connection queries;
    RegistrationHandle focusChanges;
    std::uint32_t process;
    bool isActive = false;
};

} // namespace ondrilo
