#pragma once

#include "platform/TargetHook.h"

#include <QObject>

namespace ondrilo {

/// Watches another program through the hook library. Its thread puts the events into an inbox, from which
/// they are handed out one at a time on the user-interface thread, inside a dialog's loop too.
class QtTargetHook : public QObject, public TargetHook {
    Q_OBJECT

  public:
    QtTargetHook();
    ~QtTargetHook() override;

    /// To be called after each event; it must handle what the event put into the message queue.
    void OnHandled(std::function<void()> drain);
    /// Hands out what has arrived, as the event loop does by itself. Called from inside a receiver it goes on
    /// with the next event.
    void DrainInbox();
    /// What a key means that we are about to send; see ExpectKey of the library.
    static void Expect(std::uint8_t keycode, bool isPress, std::int32_t meaning);

    [[nodiscard]] bool InitializeHook(WindowId target, const Receiver& receiver) override;
    void TerminateHook() override;
    void AddSpecialKey(int code) override;
    void DeleteSpecialKey(int code) override;
    void AddMouseButtons() override;
    void DeleteMouseButtons() override;

  private:
    void HandOut(const MessageEvent& event);

    MessageQueue inbox;
    std::function<void()> drain;
    Receiver receiver;
};

} // namespace ondrilo
