#include "platform/qt/QtTargetHook.h"

#include "hook/HookTessivor.h"

namespace ondrilo {
namespace {

void PostToInbox(void* inbox, std::uint32_t message, std::int32_t first, std::int32_t second) {
    static_cast<MessageQueue*>(inbox)->Post(static_cast<Message>(message), first, second);
}

} // namespace

QtTargetHook::QtTargetHook() {
    // One event of Qt for each post: a receiver that opens a dialog leaves the rest to the dialog's loop,
    // which needs wakes of its own for it.
    inbox.OnPost(
        [this] { QMetaObject::invokeMethod(this, &QtTargetHook::DrainInbox, Qt::QueuedConnection); });
}

QtTargetHook::~QtTargetHook() {
    QtTargetHook::TerminateHook();
}

void QtTargetHook::OnHandled(std::function<void()> newDrain) {
    drain = std::move(newDrain);
}

void QtTargetHook::DrainInbox() {
    inbox.Drain([this](const MessageEvent& event) { HandOut(event); });
}

void QtTargetHook::HandOut(const MessageEvent& event) {
    const auto current = receiver; // it may end the watch
    if (current)
        current(event);
    if (drain)
        drain();
}

void QtTargetHook::Expect(std::uint8_t keycode, bool isPress, std::int32_t meaning) {
    ExpectKey(keycode, isPress, meaning);
}

bool QtTargetHook::InitializeHook(WindowId target, const Receiver& newReceiver) {
    TerminateHook();
    if (!::InitializeHook(static_cast<std::uint32_t>(target), PostToInbox, &inbox))
        return false;
    receiver = newReceiver;
    return true;
}

void QtTargetHook::TerminateHook() {
    ::TerminateHook();
    inbox.Clear();
    receiver = nullptr;
}

void QtTargetHook::AddSpecialKey(int code) {
    ::AddSpecialKey(code);
}

void QtTargetHook::DeleteSpecialKey(int code) {
    ::DeleteSpecialKey(code);
}

void QtTargetHook::AddMouseButtons() {
    ::AddMouseButtons();
}

void QtTargetHook::DeleteMouseButtons() {
    ::DeleteMouseButtons();
}

} // namespace ondrilo
