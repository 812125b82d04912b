#pragma once

#include "platform/Clock.h"
#include "platform/qt/SsipProtocol.h"

#include <QLocalSocket>
#include <QTimer>

#include <deque>
#include <functional>
#include <string>

namespace ondrilo {

/// A connection to the speech service: commands go out, also several before the first is answered, and each
/// reply finds who asked. Who does not answer in time is hung up on.
class SsipConnection {
  public:
    static constexpr Milliseconds kPatience{2000};

    using OnLine = std::function<void(const SsipLine&)>;
    struct Events {
        std::function<void()> opened;
        /// Tells whether anybody had listened at all. Comes from the event loop, never from inside a call.
        std::function<void(bool reached)> lost;
    };
    explicit SsipConnection(Events events);

    void Open(const std::string& socketPath);
    /// `onLine` gets the lines of the reply, each of them within `patience`. Nothing leaves before Flush.
    void Send(std::string_view bytes, OnLine onLine, Milliseconds patience = kPatience);
    void Flush() { socket.flush(); }

  private:
    struct Expected {
        OnLine onLine;
        Milliseconds patience;
    };
    void Read();
    void WaitForReply();
    void Fail();
    void Lose();

    Events events;
    QLocalSocket socket;
    QTimer deadline;
    QTimer end; ///< losing the connection waits for the event loop: its users may be in the middle of a call
    SsipReader reader;
    std::deque<Expected> expected;
    bool reached = false;
    bool used = false;
};

} // namespace ondrilo
