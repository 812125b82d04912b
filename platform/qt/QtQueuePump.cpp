#include "platform/qt/QtQueuePump.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace ondrilo {
namespace {

/// An input on its way to a window or, from an input method, straight to what has the focus.
bool IsNewInput(const QObject& receiver, const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
        return receiver.isWindowType();
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

} // namespace

QtQueuePump::QtQueuePump(MessageQueue& queue, std::function<void(const MessageEvent&)> handle)
    : queue(queue), handle(std::move(handle)) {
    // One event of Qt for each post, never merged: a handler that opens a dialog leaves the rest of the queue
    // to the dialog's loop, which needs wakes of its own for it.
    queue.OnPost([this] {
        QMetaObject::invokeMethod(
            this, [this] { this->queue.Drain(this->handle); }, Qt::QueuedConnection);
    });
    // Qt hands out all input that has arrived before it looks at what was posted meanwhile.
    QCoreApplication::instance()->installEventFilter(this);
}

QtQueuePump::~QtQueuePump() {
    queue.OnPost({});
}

bool QtQueuePump::eventFilter(QObject* watched, QEvent* event) {
    if (!IsNewInput(*watched, *event))
        return false;
    const QPointer<QObject> receiver(watched);
    queue.Drain(handle);
    return receiver.isNull(); // a handler may have closed what the input was for
}

} // namespace ondrilo
