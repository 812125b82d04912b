#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

namespace ondrilo {

/// The events of the running system. The values are fixed: the hook library posts them too.
enum class Message : std::uint32_t {
    UM_KEY_DOWN = 0x8000,
    UM_LEFT_DOWN = 0x8001,
    UM_LEFT_UP = 0x8002,
    UM_RIGHT_DOWN = 0x8003,
    UM_RIGHT_UP = 0x8004,
    UM_MIDDLE_DOWN = 0x8005,
    UM_MIDDLE_UP = 0x8006,
    UM_POINTER_MOVED = 0x8007,
    UM_KEY_UP = 0x8008,
    UM_WORD_END = 0x8009,
    UM_CHAR = 0x800B,
    UM_SENTENCE_END = 0x800C,
    UM_KEY_HOVER = 0x8014,
    UM_KEY_PRESS = 0x8015,
    UM_SCAN_ADVANCE = 0x8016,
    UM_SCAN_KEY_SELECTED = 0x8017,
    UM_SCAN_LINES = 0x8018,
    UM_SCAN_GROUPS = 0x8019,
    UM_SCAN_KEYS = 0x801A,
    UM_SCAN_LINE_SELECTED = 0x801B,
    UM_SCAN_GROUP_SELECTED = 0x801C,
    UM_KEY_DOUBLE_CLICK = 0x801D,
    UM_LAYOUT = 0x8064,
};

struct MessageEvent {
    Message message;
    std::int32_t first = 0;
    std::int32_t second = 0;
    bool operator==(const MessageEvent&) const = default;
};

/// The one queue of the system: filled from any thread, drained in order on the user-interface thread, inside
/// a dialog's loop too. Posting never runs a handler. While it is held nothing is handled; what was posted
/// then waits for the end of the hold, or is thrown away by Clear.
class MessageQueue {
  public:
    /// Keeps the queue from being drained for as long as it lives.
    class [[nodiscard]] Hold {
      public:
        explicit Hold(MessageQueue& queue) : queue(&queue) { ++queue.holds; }
        Hold(Hold&& other) noexcept : queue(std::exchange(other.queue, nullptr)) {}
        Hold& operator=(Hold&&) = delete;
        ~Hold() {
            if (queue)
                queue->Release();
        }

      private:
        MessageQueue* queue;
    };

    /// `wake` is called once for each post, on the posting thread; it must bring about a Drain on the
    /// user-interface thread.
    void OnPost(std::function<void()> wake);
    void Post(Message message, std::int32_t first = 0, std::int32_t second = 0);
    /// Handles what is in the queue, in order, also what the handlers post meanwhile. Called again from
    /// inside a handler (a dialog's loop) it goes on with the next event. Does nothing while held.
    void Drain(const std::function<void(const MessageEvent&)>& handle);
    void Clear();
    /// Throws away what waits of the messages from `first` to `last`.
    void Clear(Message first, Message last);
    [[nodiscard]] bool IsHeld() const { return holds > 0; }

  private:
    std::optional<MessageEvent> Take();
    void Release();

    std::mutex mutex;
    std::deque<MessageEvent> events;
    std::function<void()> wake;
    int holds = 0; // user-interface thread only
};

} // namespace ondrilo
