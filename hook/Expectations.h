#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>

namespace ondrilo {

/// Keys of ours that are on their way to the server and back, with what they stand for. Told by one thread
/// and asked by another.
class Expectations {
  public:
    void Add(std::uint8_t keycode, bool isPress, std::int32_t meaning);
    /// What the key that has come stands for; nothing if it was not told.
    [[nodiscard]] std::optional<std::int32_t> Take(std::uint8_t keycode, bool isPress);

  private:
    struct Expected {
        std::uint8_t keycode;
        bool isPress;
        std::int32_t meaning;
        std::chrono::steady_clock::time_point since;
    };
    void ForgetOld();

    std::mutex mutex;
    std::deque<Expected> expected;
};

} // namespace ondrilo
