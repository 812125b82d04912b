#pragma once

#include "platform/Desktop.h"

#include <QDialog>

namespace ondrilo {

/// For as long as a dialog is open: remembers which window of the desktop had the focus before (0: none) and
/// gives it back at the end. Without that, closing a dialog leaves nobody focused and what the person types
/// is lost.
class [[nodiscard]] FocusReturn {
  public:
    FocusReturn(Desktop& desktop, WindowId before) : desktop(desktop), before(before) {}
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
/// It stands over the dialog that is open already, if any, and goes back there. The result is that of
/// QDialog::exec.
int RunDialog(QDialog& dialog, Desktop& desktop);

} // namespace ondrilo
