#pragma once

#include "text/Text.h"

#include <vector>

namespace ondrilo {

/// The columns of a line of the event log but for its time. One without content is empty.
struct LogEvent {
    Text output; ///< text that the event put into the message
    Text event;  ///< what the person did
    Text type;   ///< what that was done to, or what it did
    Text element;
    Text center;  ///< of the element on the screen
    Text page;    ///< keyboard on show
    Text context; ///< the message before the event
    bool operator==(const LogEvent&) const = default;
};

/// The event log of a session. This form is never open. Whoever writes to it asks IsOpen first, so that
/// without a log no text is built.
class EventLog {
  public:
    virtual ~EventLog() = default;
    [[nodiscard]] virtual bool IsOpen() const { return false; }
    /// Opens a new log for that profile. One that is still open ends there, without its end.
    virtual void Start(TextView /*profile*/) {}
    virtual void Write(const LogEvent&) {}
    /// Writes the last section and closes; nothing if no log is open.
    virtual void End(const std::vector<Text>& /*metrics*/, const std::vector<Text>& /*finalTexts*/) {}
    /// Opens the window that shows the lines as they are written, or says why not.
    virtual void ShowViewer() {}
};

} // namespace ondrilo
