#include "hook/Hook.h"

#include <algorithm>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace ondrilo {
namespace {

constexpr std::chrono::milliseconds kBetweenMoves{100};
/// So long after we gave the keyboard back a record of the time before may still come in.
constexpr std::chrono::milliseconds kLateRecords{200};

std::optional<Message> MessageOf(std::uint8_t button, bool isPress) {
    switch (button) {
    case XCB_BUTTON_INDEX_1:
        return isPress ? Message::UM_LEFT_DOWN : Message::UM_LEFT_UP;
    case XCB_BUTTON_INDEX_2:
        return isPress ? Message::UM_MIDDLE_DOWN : Message::UM_MIDDLE_UP;
    case XCB_BUTTON_INDEX_3:
        return isPress ? Message::UM_RIGHT_DOWN : Message::UM_RIGHT_UP;
    default:
        return std::nullopt;
    }
}

/// Also while no key of a modifier is down: people who press one key at a time latch them.
std::int32_t ModifiersIn(unsigned state) {
    std::uint32_t bits = 0;
    if ((state & XCB_MOD_MASK_SHIFT) != 0)
        bits |= kKeyWithShift;
    if ((state & XCB_MOD_MASK_CONTROL) != 0)
        bits |= kKeyWithControl;
    return static_cast<std::int32_t>(bits);
}

} // namespace

Hook::Hook(WindowId target, HookReceiver receiver, void* context)
    : receiver(receiver), context(context), wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (wakeUp >= 0 && recorder.IsRecording())
        thread = std::thread([this, target] {
            watcher.emplace(target);
            reader.emplace();
            swallower.emplace();
            Run();
        });
}

Hook::~Hook() {
    isEnding = true;
    Wake();
    if (thread.joinable())
        thread.join();
    if (wakeUp >= 0)
        close(wakeUp);
}

void Hook::AddSpecialKey(int code) {
    const std::lock_guard lock(mutex);
    given.specialKeys.insert(code);
    Wake();
}

void Hook::DeleteSpecialKey(int code) {
    const std::lock_guard lock(mutex);
    given.specialKeys.erase(code);
    Wake();
}

void Hook::SwallowButtons(bool swallow) {
    const std::lock_guard lock(mutex);
    given.swallowsButtons = swallow;
    Wake();
}

void Hook::Wake() const {
    eventfd_write(wakeUp, 1);
}

void Hook::Run() {
    while (!isEnding && recorder.IsRecording()) {
        TakeOrders();
        FollowFocus();
        recorder.Read(
            [this] {
                reader->ForgetMap();
                areSwallowedKeysStale = true;
            },
            [this](const InputEvent& event) { Handle(event); });
        UpdateSwallowedKeys();
        // Last, since the answers that the others wait for bring events with them.
        swallower->ProcessEvents([this](Point point) { return watcher->IsAt(point); });
        Wait();
    }
}

void Hook::Wait() {
    pollfd sources[] = {{wakeUp, POLLIN, 0},
                        {recorder.Descriptor(), POLLIN, 0},
                        {recorder.BellDescriptor(), POLLIN, 0},
                        {watcher->Descriptor(), POLLIN, 0},
                        {swallower->Descriptor(), POLLIN, 0}};
    poll(sources, std::size(sources), -1);
}

void Hook::TakeOrders() {
    eventfd_t calls = 0;
    if (eventfd_read(wakeUp, &calls) != 0)
        return;
    const std::lock_guard lock(mutex);
    areSwallowedKeysStale |= orders.specialKeys != given.specialKeys;
    orders = given;
    swallower->SwallowButtons(orders.swallowsButtons);
}

void Hook::FollowFocus() {
    watcher->ProcessEvents();
    if (watcher->IsActive() == wasActive)
        return;
    wasActive = watcher->IsActive();
    areSwallowedKeysStale = true;
    reader->ForgetDeadKey();
}

void Hook::UpdateSwallowedKeys() {
    if (!areSwallowedKeysStale)
        return;
    areSwallowedKeysStale = false;
    swallower->SwallowKeys(wasActive ? reader->ChordsOf(orders.specialKeys) : std::set<KeyChord>{});
}

void Hook::Handle(const InputEvent& event) {
    switch (event.type) {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
        return HandleKey(event);
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE:
        return HandleButton(event.detail, event.type == XCB_BUTTON_PRESS, event.position);
    default:
        return HandleMove(event.position);
    }
}

void Hook::HandleKey(const InputEvent& event) {
    const Keycode keycode = event.detail;
    const bool isPress = event.type == XCB_KEY_PRESS;
    const unsigned state = event.hasState || !IsRecordLate() ? event.state : lastState;
    const bool isRepeat = isPress && down[keycode];
    down[keycode] = isPress;
    lastState = reader->StateAfter(keycode, isPress, state);
    const auto meaning = expectations.Take(keycode, isPress);
    if (meaning == kHookSilence)
        return;
    if (!isPress)
        return Release(keycode);
    if (!wasActive)
        return;
    Press(keycode, state,
          meaning ? reader->ReadOurs(keycode, state, static_cast<char>(*meaning))
                  : reader->ReadPress(keycode, state),
          isRepeat);
}

void Hook::Press(Keycode keycode, unsigned state, const KeyReader::Reading& reading, bool isRepeat) {
    const bool isSpecial = IsSpecial(reading.codes);
    if (isSpecial && reader->IsCommand(state))
        return;
    // The completion that the key may bring about must find the way to the program free.
    if (isSpecial) {
        swallower->GiveKeyboardBack();
        keyboardBack = std::chrono::steady_clock::now();
    }
    const auto keyData = KeyDataOf(keycode, false, isRepeat) | ModifiersIn(state);
    for (const int code : reading.codes)
        Send(Message::UM_KEY_DOWN, code, keyData);
    reported[keycode] = reading.codes;
    if (isSpecial)
        return;
    for (const char c : reading.characters)
        Send(Message::UM_CHAR, static_cast<unsigned char>(c), keyData);
}

void Hook::Release(Keycode keycode) {
    const auto codes = std::exchange(reported[keycode], {});
    const auto keyData = KeyDataOf(keycode, true, false);
    std::for_each(codes.rbegin(), codes.rend(), [&](int code) { Send(Message::UM_KEY_UP, code, keyData); });
}

bool Hook::IsRecordLate() const {
    return std::chrono::steady_clock::now() - keyboardBack < kLateRecords;
}

bool Hook::IsSpecial(const std::vector<int>& codes) const {
    return std::ranges::any_of(codes, [this](int code) { return orders.specialKeys.contains(code); });
}

void Hook::HandleButton(std::uint8_t button, bool isPress, Point position) {
    const auto message = MessageOf(button, isPress);
    if (!message)
        return;
    const bool isReported = isPress ? watcher->IsAt(position) : reportedButtons[button];
    reportedButtons[button] = isPress && isReported;
    if (isReported)
        Send(*message);
}

void Hook::HandleMove(Point position) {
    const auto now = std::chrono::steady_clock::now();
    if (now - lastMove < kBetweenMoves)
        return;
    lastMove = now;
    if (watcher->IsAt(position))
        Send(Message::UM_POINTER_MOVED, 0, (position.x & 0xFF) | (position.y & 0xFF) << 16);
}

void Hook::Send(Message message, std::int32_t first, std::int32_t second) const {
    receiver(context, static_cast<std::uint32_t>(message), first, second);
}

} // namespace ondrilo
