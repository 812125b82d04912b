#pragma once

#include "logging/MessageContext.h"
#include "text/Text.h"

#include <vector>

namespace ondrilo {

/// Small state of a session that several controllers read and write.
struct SessionState {
    /// Texts of the selection that is half done: heard, shown. Nothing but a finished selection and the start
    /// of a session empties them.
    struct Stages {
        Text lastSpoken;
        Text lastShown;
        bool operator==(const Stages&) const = default;
        [[nodiscard]] bool AreNone() const { return lastSpoken.empty() && lastShown.empty(); }
    } stages;
    /// The key pressed before this one, -1 for none.
    int lastKeyCode = -1;
    /// Key presses of the system's own that are still to come back from the target.
    int pendingSimulatedKeys = 0;
    /// For the event log: the sentence that is being written, and the texts that were cleared.
    MessageContext context;
    std::vector<Text> finalTexts;

    void ForgetSelection() { stages = {}; }
};

} // namespace ondrilo
