#include "platform/x11/X11KeyOutput.h"

#include "platform/x11/KeyGuardian.h"
#include "platform/x11/KeyboardMap.h"
#include "platform/x11/PersonsKeys.h"
#include "platform/x11/SpareKeys.h"

#include <xcb/xtest.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <thread>
// The header names a field with a word of C++.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace ondrilo {
namespace {

constexpr std::uint8_t kSynchronization = 0;
/// So long after the last character a program may still fetch the keyboard's map to understand it.
constexpr std::chrono::milliseconds kLateReaders{300};

struct LockState {
    unsigned base = 0; ///< modifiers of keys that are down
    unsigned locked = 0;
    unsigned layout = 0;
};

} // namespace

class X11KeyOutput::Implementation {
  public:
    explicit Implementation(Lending lending);
    ~Implementation();

    [[nodiscard]] bool IsAvailable() const { return map.has_value(); }
    void Type(char c);
    void Down(int code);
    void Up(int code);
    [[nodiscard]] LockState State() const;
    /// The map of the layout in effect; brought up to date first.
    const KeyboardMap& Map(unsigned layout);
    bool LendNext();

    X11Connection connection;
    Announce announce = [](Keycode, bool, std::int32_t) {
    };

  private:
    void Listen();
    void ReadKeymap();
    void SkipEvents();
    void Send(std::uint8_t type, Keycode keycode);
    void SendSilently(std::uint8_t type, Keycode keycode);
    void Press(Keycode keycode);
    void Release(Keycode keycode);
    [[nodiscard]] unsigned HeldModifiers() const;
    std::vector<Keycode> PressModifiers(unsigned wanted);
    void PressStroke(const KeyStroke& stroke, std::optional<char> meaning = std::nullopt);
    void LockNumLock(bool locked);
    void LiftPersonsModifiers(const LockState& state);
    void PutBackPersonsModifiers();
    [[nodiscard]] bool HoldsWritingKey() const;

    std::unique_ptr<xkb_context, decltype(&xkb_context_unref)> context{xkb_context_new(XKB_CONTEXT_NO_FLAGS),
                                                                       xkb_context_unref};
    KeyGuardian guardian;
    PersonsKeys person{connection};
    SpareKeys spares{connection};
    Lending lending;
    std::shared_ptr<xkb_keymap> keymap;
    std::optional<KeyboardMap> map;
    bool isStale = true;
    std::uint8_t keyboardEvent = kSynchronization;
    std::vector<std::pair<int, Keycode>> heldCodes;
    std::vector<Keycode> held;
    std::vector<Keycode> lifted;
    std::chrono::steady_clock::time_point lastTyped;
};

X11KeyOutput::Implementation::Implementation(Lending lending) : lending(lending) {
    if (!connection.Has(xcb_test_id) || !context)
        return;
    if (!xkb_x11_setup_xkb_extension(connection.Get(), XKB_X11_MIN_MAJOR_XKB_VERSION,
                                     XKB_X11_MIN_MINOR_XKB_VERSION, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS,
                                     nullptr, nullptr, &keyboardEvent, nullptr))
        return;
    Listen();
    const LockState state = State();
    ReadKeymap();
    if (keymap)
        Map(state.layout);
}

X11KeyOutput::Implementation::~Implementation() {
    if (!IsAvailable())
        return;
    while (!held.empty())
        Release(held.back());
    PutBackPersonsModifiers();
    connection.Synchronize();
    std::this_thread::sleep_until(lastTyped + kLateReaders);
    spares.Detach();
}

void X11KeyOutput::Implementation::Listen() {
    constexpr std::uint16_t kEvents = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t kAllParts = 0xFF;
    xcb_xkb_select_events(connection.Get(), XCB_XKB_ID_USE_CORE_KBD, kEvents, 0, kEvents, kAllParts,
                          kAllParts, nullptr);
}

void X11KeyOutput::Implementation::ReadKeymap() {
    // What we type arrives with the map of the device through which programs type. Where the person's own
    // keyboard has another one, theirs is not what the programs will see.
    const auto device = person.TypingDevice();
    const auto id = device ? *device : xkb_x11_get_core_keyboard_device_id(connection.Get());
    auto* read =
        xkb_x11_keymap_new_from_device(context.get(), connection.Get(), id, XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (read)
        keymap = {read, xkb_keymap_unref};
}

void X11KeyOutput::Implementation::SkipEvents() {
    while (const auto event = Owned(xcb_poll_for_event(connection.Get())))
        isStale |= (event->response_type & 0x7F) == keyboardEvent ||
                   (event->response_type & 0x7F) == XCB_MAPPING_NOTIFY;
}

const KeyboardMap& X11KeyOutput::Implementation::Map(unsigned layout) {
    SkipEvents();
    if (isStale && map)
        ReadKeymap();
    if (isStale || map->Layout() != layout) {
        map.emplace(keymap, layout);
        spares.Attach();
        isStale = false;
        while (lending == Lending::AtOnce && LendNext()) {
        }
    }
    return *map;
}

bool X11KeyOutput::Implementation::LendNext() {
    if (spares.LendNext([this](char32_t character) { return map->StrokeOf(character).has_value(); }))
        return true;
    lending = Lending::AtOnce;
    return false;
}

LockState X11KeyOutput::Implementation::State() const {
    const auto cookie = xcb_xkb_get_state(connection.Get(), XCB_XKB_ID_USE_CORE_KBD);
    const auto reply = Owned(xcb_xkb_get_state_reply(connection.Get(), cookie, nullptr));
    return reply ? LockState{reply->baseMods, reply->lockedMods, reply->group} : LockState{};
}

void X11KeyOutput::Implementation::Send(std::uint8_t type, Keycode keycode) {
    xcb_test_fake_input(connection.Get(), type, keycode, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

void X11KeyOutput::Implementation::SendSilently(std::uint8_t type, Keycode keycode) {
    announce(keycode, type == XCB_KEY_PRESS, kSilent);
    Send(type, keycode);
}

void X11KeyOutput::Implementation::Press(Keycode keycode) {
    guardian.Pressed(keycode);
    held.push_back(keycode);
    // The typing device may still believe this modifier down, from when we put back one that the person has
    // let go since, and would swallow the press.
    if (map->IsModifier(keycode))
        Send(XCB_KEY_RELEASE, keycode);
    Send(XCB_KEY_PRESS, keycode);
    connection.Flush();
}

void X11KeyOutput::Implementation::Release(Keycode keycode) {
    Send(XCB_KEY_RELEASE, keycode);
    connection.Flush();
    std::erase(held, keycode);
    guardian.Released(keycode);
}

unsigned X11KeyOutput::Implementation::HeldModifiers() const {
    unsigned bits = 0;
    for (const Keycode keycode : held)
        bits |= map->ModifiersOf(keycode);
    return bits;
}

/// Presses what is missing of `wanted`; what we hold anyway stays as it is.
std::vector<Keycode> X11KeyOutput::Implementation::PressModifiers(unsigned wanted) {
    std::vector<Keycode> pressed;
    const unsigned missing = wanted & ~HeldModifiers();
    for (unsigned bit = 1; bit <= missing; bit <<= 1)
        if (const auto keycode = map->ModifierKey(bit & missing)) {
            Press(*keycode);
            pressed.push_back(*keycode);
        }
    return pressed;
}

/// Presses the key with its modifiers, which are released at once; the key stays down.
void X11KeyOutput::Implementation::PressStroke(const KeyStroke& stroke, std::optional<char> meaning) {
    const bool needsNumLock = (stroke.modifiers & map->NumLockBit()) != 0;
    const auto pressed = PressModifiers(stroke.modifiers & ~map->NumLockBit());
    if (needsNumLock)
        LockNumLock(true);
    if (meaning)
        announce(stroke.keycode, true, static_cast<unsigned char>(*meaning));
    Press(stroke.keycode);
    if (needsNumLock)
        LockNumLock(false);
    std::for_each(pressed.rbegin(), pressed.rend(), [this](Keycode keycode) { Release(keycode); });
}

/// Without a press of its key, which would be told to everybody as the person's wish.
void X11KeyOutput::Implementation::LockNumLock(bool locked) {
    const auto bit = static_cast<std::uint8_t>(map->NumLockBit());
    const auto value = static_cast<std::uint8_t>(locked ? bit : 0);
    xcb_xkb_latch_lock_state(connection.Get(), XCB_XKB_ID_USE_CORE_KBD, bit, value, 0, 0, 0, 0, 0);
}

void X11KeyOutput::Implementation::LiftPersonsModifiers(const LockState& state) {
    if ((state.base & ~HeldModifiers()) == 0)
        return;
    const Keycodes down = person.Down();
    for (unsigned keycode = 0; keycode < down.size(); ++keycode) {
        const auto key = static_cast<Keycode>(keycode);
        if (!down[keycode] || !map->IsModifier(key) || std::ranges::count(held, key) > 0)
            continue;
        lifted.push_back(key);
        SendSilently(XCB_KEY_RELEASE, key);
    }
}

void X11KeyOutput::Implementation::PutBackPersonsModifiers() {
    if (lifted.empty())
        return;
    Keycodes down = person.Down();
    for (const Keycode keycode : lifted)
        if (down[keycode])
            SendSilently(XCB_KEY_PRESS, keycode);
    // One that the person let go between the question and our press would stay down for ever.
    down = person.Down();
    for (const Keycode keycode : lifted)
        if (!down[keycode])
            SendSilently(XCB_KEY_RELEASE, keycode);
    connection.Flush();
    lifted.clear();
}

bool X11KeyOutput::Implementation::HoldsWritingKey() const {
    return std::ranges::any_of(held, [this](Keycode keycode) { return !map->IsModifier(keycode); });
}

void X11KeyOutput::Implementation::Type(char c) {
    const LockState state = State();
    const KeyboardMap& current = Map(state.layout);
    auto stroke = current.StrokeOf(CodePointOf(c));
    if (!stroke && static_cast<unsigned char>(c) >= ' ')
        stroke = spares.StrokeOf(c);
    if (!stroke)
        return;
    LiftPersonsModifiers(state);
    PressStroke(*stroke, c);
    Release(stroke->keycode);
    if (!HoldsWritingKey())
        PutBackPersonsModifiers();
    lastTyped = std::chrono::steady_clock::now();
}

void X11KeyOutput::Implementation::Down(int code) {
    const LockState state = State();
    const KeyboardMap& current = Map(state.layout);
    const auto isKnown = [code](const auto& entry) {
        return entry.first == code;
    };
    const auto stroke = current.StrokeOfCode(code, (state.locked & current.NumLockBit()) != 0);
    if (!stroke || std::ranges::any_of(heldCodes, isKnown))
        return;
    heldCodes.emplace_back(code, stroke->keycode);
    if (current.IsModifier(stroke->keycode)) {
        Press(stroke->keycode);
        return;
    }
    LiftPersonsModifiers(state);
    PressStroke(*stroke);
    lastTyped = std::chrono::steady_clock::now();
}

void X11KeyOutput::Implementation::Up(int code) {
    const auto isKnown = [code](const auto& entry) {
        return entry.first == code;
    };
    const auto found = std::ranges::find_if(heldCodes, isKnown);
    if (found == heldCodes.end())
        return;
    const Keycode keycode = found->second;
    heldCodes.erase(found);
    Release(keycode);
    if (!HoldsWritingKey())
        PutBackPersonsModifiers();
}

X11KeyOutput::X11KeyOutput(Lending lending) : implementation(std::make_unique<Implementation>(lending)) {
}

X11KeyOutput::~X11KeyOutput() = default;

bool X11KeyOutput::IsAvailable() const {
    return implementation->IsAvailable();
}

std::optional<LayoutKey> X11KeyOutput::KeyOf(char c) const {
    if (!IsAvailable())
        return std::nullopt;
    return implementation->Map(implementation->State().layout).KeyOf(c);
}

void X11KeyOutput::OnAnnounce(Announce announce) {
    implementation->announce = std::move(announce);
}

void X11KeyOutput::TypeCharacter(char c) {
    if (IsAvailable())
        implementation->Type(c);
}

void X11KeyOutput::KeyDown(int code) {
    if (IsAvailable())
        implementation->Down(code);
}

void X11KeyOutput::KeyUp(int code) {
    if (IsAvailable())
        implementation->Up(code);
}

bool X11KeyOutput::LendNext() {
    if (!IsAvailable())
        return false;
    implementation->Map(implementation->State().layout);
    return implementation->LendNext();
}

bool X11KeyOutput::IsCapsLockOn() const {
    return IsAvailable() && (implementation->State().locked & KeyboardMap::kLockBit) != 0;
}

Text X11KeyOutput::KeyName(int code) const {
    if (!IsAvailable())
        return NameOfVirtualKey(code);
    return implementation->Map(implementation->State().layout).NameOf(code);
}

} // namespace ondrilo
