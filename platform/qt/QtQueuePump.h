#pragma once

#include "platform/MessageQueue.h"

#include <QObject>

namespace ondrilo {

/// Drains the queue on the thread that made the pump, from its event loop, inside a dialog's loop too. What
/// was posted before an input of the person's is handled before the input: keys that arrive in a burst, as
/// those of a completion do, are each seen with the text as it was when they came.
class QtQueuePump : public QObject {
    Q_OBJECT

  public:
    QtQueuePump(MessageQueue& queue, std::function<void(const MessageEvent&)> handle);
    ~QtQueuePump() override;

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    MessageQueue& queue;
    std::function<void(const MessageEvent&)> handle;
};

} // namespace ondrilo
