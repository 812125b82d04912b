#pragma once

#include "platform/COnScreenKeyIdentifier.h"
#include "text/Text.h"

#include <optional>

namespace ondrilo {

/// What a person did, as a row of the event log. Time, page and context are the log's own to add.
struct LogEvent {
    Text output; ///< text that the event put into the message
    Text event;
    Text type;
    std::optional<COnScreenKeyIdentifier> key;
    bool operator==(const LogEvent&) const = default;
};

/// The event log of a session. This form is never open. Whoever writes to it asks IsOpen first, so that
/// without a log no text is built.
class EventLog {
  public:
    virtual ~EventLog() = default;
    [[nodiscard]] virtual bool IsOpen() const { return false; }
    /// Opens a new log for the active profile.
    virtual void Start() {}
    /// Writes the final records and closes; nothing if none is open.
    virtual void End() {}
    virtual void Write(const LogEvent&) {}
    /// Takes the message's present state as the context of the next events.
    virtual void UpdateContext() {}
    /// Keeps a text that is about to be cleared, for the final records.
    virtual void AddFinalText(TextView) {}
};

} // namespace ondrilo
