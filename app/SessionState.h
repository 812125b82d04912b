#pragma once

#include "text/Text.h"

namespace ondrilo {

/// Small state of a session that several controllers read and write.
struct SessionState {
    /// Texts of the selection that is half done: heard, shown. Nothing but a finished selection and the start
    /// of a session empties them.
    Text lastSpoken;
    Text lastShown;
    /// The key pressed before this one, -1 for none.
    int lastKeyCode = -1;
    /// Key presses of the system's own that are still to come back from the target.
    int pendingSimulatedKeys = 0;

    void ForgetSelection() {
        lastSpoken.clear();
        lastShown.clear();
    }
};

} // namespace ondrilo
