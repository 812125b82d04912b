#pragma once

#include "platform/MessageQueue.h"

#include <QObject>

namespace ondrilo {

/// Drains the queue on the thread that made the pump, from its event loop, inside a dialog's loop too.
class QtQueuePump : public QObject {
    Q_OBJECT

  public:
    QtQueuePump(MessageQueue& queue, std::function<void(const MessageEvent&)> handle);
    ~QtQueuePump() override;

  private:
    MessageQueue& queue;
    std::function<void(const MessageEvent&)> handle;
};

} // namespace ondrilo
