#include "platform/MessageQueue.h"

namespace ondrilo {

void MessageQueue::OnPost(std::function<void()> newWake) {
    const std::lock_guard lock(mutex);
    wake = std::move(newWake);
}

void MessageQueue::Post(Message message, std::int32_t first, std::int32_t second) {
    std::function<void()> notify;
    {
        const std::lock_guard lock(mutex);
        events.push_back({message, first, second});
        notify = wake;
    }
    // Outside the lock: a wake that drains at once must not wait for itself.
    if (notify)
        notify();
}

std::optional<MessageEvent> MessageQueue::Take() {
    const std::lock_guard lock(mutex);
    if (events.empty())
        return std::nullopt;
    const MessageEvent event = events.front();
    events.pop_front();
    return event;
}

void MessageQueue::Drain(const std::function<void(const MessageEvent&)>& handle) {
    while (!IsHeld()) {
        const auto event = Take();
        if (!event)
            return;
        handle(*event);
    }
}

void MessageQueue::Clear() {
    const std::lock_guard lock(mutex);
    events.clear();
}

void MessageQueue::Clear(Message first, Message last) {
    const std::lock_guard lock(mutex);
    std::erase_if(events,
                  [=](const MessageEvent& event) { return event.message >= first && event.message <= last; });
}

void MessageQueue::Release() {
    if (--holds > 0)
        return;
    std::function<void()> notify;
    {
        const std::lock_guard lock(mutex);
        if (!events.empty())
            notify = wake;
    }
    if (notify)
        notify();
}

} // namespace ondrilo
