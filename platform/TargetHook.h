#pragma once

#include "platform/Desktop.h"
#include "platform/MessageQueue.h"

#include <functional>

namespace ondrilo {

/// Watches the keys and the mouse of one other program: keys while a window of it is active, the mouse over
/// its windows. This class is at the same time the form without such a means.
class TargetHook {
  public:
    virtual ~TargetHook() = default;

    /// Gets UM_KEY_DOWN, UM_KEY_UP, UM_CHAR, UM_LEFT_DOWN to UM_MIDDLE_UP and UM_POINTER_MOVED, one at a time
    /// on the user-interface thread. Whatever one of them put into the message queue is handled before the
    /// next one comes, so that a handler sees the text as it was then.
    using Receiver = std::function<void(const MessageEvent&)>;
    /// Begins to watch the program of that window; false if it cannot be watched.
    [[nodiscard]] virtual bool InitializeHook(WindowId /*target*/, const Receiver& /*receiver*/) {
        return false;
    }
    /// Nothing is received any more, and what was swallowed is free.
    virtual void TerminateHook() {}

    /// Keys that are reported but do not reach the program, by their virtual code.
    virtual void AddSpecialKey(int /*code*/) {}
    virtual void DeleteSpecialKey(int /*code*/) {}
    virtual void AddMouseButtons() {}
    virtual void DeleteMouseButtons() {}
};

} // namespace ondrilo
