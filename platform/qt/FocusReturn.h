#pragma once

#include "platform/Desktop.h"

#include <QDialog>

namespace ondrilo {

/// For as long as a dialog is open: remembers which window of the desktop had the focus and gives it back at
/// the end. Without that, closing a dialog leaves nobody focused and what the person types is lost.
class [[nodiscard]] FocusReturn {
  public:
    explicit FocusReturn(Desktop& desktop) : desktop(desktop), before(desktop.ForegroundWindow()) {}
    FocusReturn(const FocusReturn&) = delete;
    FocusReturn& operator=(const FocusReturn&) = delete;
    ~FocusReturn() {
        if (before != 0)
            desktop.Activate(before);
    }

  private:
    Desktop& desktop;
    WindowId before;
};

/// Runs a dialog top-most with the focus in it, whatever the main window does, and returns the focus after.
/// The result is that of QDialog::exec.
int RunDialog(QDialog& dialog, Desktop& desktop);

} // namespace ondrilo
