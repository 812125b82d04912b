#pragma once

#include "hook/Expectations.h"
#include "hook/HookTessivor.h"
#include "hook/KeyReader.h"
#include "hook/Recorder.h"
#include "hook/Swallower.h"
#include "hook/Watcher.h"
#include "platform/MessageQueue.h"

#include <array>
#include <atomic>
#include <bitset>
#include <chrono>
#include <mutex>
#include <optional>
#include <thread>

namespace ondrilo {

/// One watch, on a thread of its own, from construction to destruction. The public functions are for the
/// other thread.
class Hook {
  public:
    Hook(WindowId target, HookReceiver receiver, void* context);
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;
    ~Hook();

    /// False if the program cannot be watched.
    [[nodiscard]] bool IsWatching() const { return thread.joinable(); }
    void AddSpecialKey(int code);
    void DeleteSpecialKey(int code);
    void SwallowButtons(bool swallow);

    Expectations expectations;

  private:
    void Wake() const;
    void Run();
    void Wait();
    void TakeOrders();
    void FollowFocus();
    void UpdateSwallowedKeys();
    void Handle(const InputEvent& event);
    void HandleKey(const InputEvent& event);
    void Press(Keycode keycode, unsigned state, const KeyReader::Reading& reading, bool isRepeat);
    void Release(Keycode keycode);
    [[nodiscard]] bool IsRecordLate() const;
    [[nodiscard]] bool IsSpecial(const std::vector<int>& codes) const;
    void HandleButton(std::uint8_t button, bool isPress, Point position);
    void HandleMove(Point position);
    void Send(Message message, std::int32_t first = 0, std::int32_t second = 0) const;

    const HookReceiver receiver;
    void* const context;
    Recorder recorder;
    // Made by the thread itself: connecting takes a while, for which nobody else must wait. What is recorded
    // meanwhile waits, too.
    std::optional<Watcher> watcher;
    std::optional<KeyReader> reader;
    std::optional<Swallower> swallower;

    /// What the other thread asks for.
    struct Orders {
        std::set<int> specialKeys;
        bool swallowsButtons = false;
    };
    std::mutex mutex;
    Orders given;
    Orders orders; ///< a copy of the watching thread's own
    std::atomic<bool> isEnding = false;
    int wakeUp;

    bool wasActive = false;
    bool areSwallowedKeysStale = true;
    std::bitset<256> down;
    std::array<std::vector<int>, 256> reported; ///< of each key that is down, the virtual keys
    std::bitset<4> reportedButtons;
    unsigned lastState = 0;
    std::chrono::steady_clock::time_point keyboardBack;
    std::chrono::steady_clock::time_point lastMove;
    std::thread thread;
};

} // namespace ondrilo
