#pragma once

#include "text/Text.h"

namespace ondrilo {

/// The window that shows the lines of the event log as they are written. This form cannot be shown.
class LogViewer {
  public:
    virtual ~LogViewer() = default;
    /// Opens the window, or shows again the one that the person closed, with the lines that it had; false if
    /// there can be none.
    [[nodiscard]] virtual bool Show() { return false; }
    /// False once the person has closed it.
    [[nodiscard]] virtual bool IsVisible() const { return false; }
    /// `line` without a line end.
    virtual void AddLine(TextView /*line*/) {}
    /// Takes the window and its lines away, open or not.
    virtual void Close() {}
};

} // namespace ondrilo
