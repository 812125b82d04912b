#include "platform/qt/QtQueuePump.h"

namespace ondrilo {

QtQueuePump::QtQueuePump(MessageQueue& queue, std::function<void(const MessageEvent&)> handle)
    : queue(queue), handle(std::move(handle)) {
    // One event of Qt for each post, never merged: a handler that opens a dialog leaves the rest of the queue
    // to the dialog's loop, which needs wakes of its own for it.
    queue.OnPost([this] {
        QMetaObject::invokeMethod(
            this, [this] { this->queue.Drain(this->handle); }, Qt::QueuedConnection);
    });
}

QtQueuePump::~QtQueuePump() {
    queue.OnPost({});
}

} // namespace ondrilo
