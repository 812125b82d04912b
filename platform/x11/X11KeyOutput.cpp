#include "platform/x11/X11KeyOutput.h"

#include "platform/x11/KeyGuardian.h"
#include "platform/x11/KeyboardMap.h"
#include "platform/x11/KeyboardWatch.h"
#include "platform/x11/PersonsKeys.h"
#include "platform/x11/SpareKeys.h"
#include "text/CaseFolding.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <thread>
#include <utility>
// The header names a field with a word of C++.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace ondrilo {
namespace {

constexpr std::chrono::milliseconds kFreshness{1};
constexpr int kCharactersPerLook = 4;
/// Between a key that writes and one that steers.
constexpr std::chrono::milliseconds kBetweenKinds{30};

} // namespace

class X11KeyOutput::Implementation {
  public:
    explicit Implementation(Lending lending);
    ~Implementation();

    [[nodiscard]] bool IsAvailable() const { return map.has_value(); }
    void Type(char c);
    void Down(int code);
    void Up(int code);
    [[nodiscard]] bool IsCapsLockOn() { return (watch.Look().locked & KeyboardMap::kLockBit) != 0; }
    /// The map of the layout in effect; brought up to date first.
    const KeyboardMap& Map();
    bool LendNext();

    X11Connection connection;
    Announce announce = [](Keycode, bool, std::int32_t) {
    };

  private:
    void Look();
    void LookInBurst();
    [[nodiscard]] std::optional<KeyStroke> StrokeOf(char c);
    void Send(std::uint8_t type, Keycode keycode);
    void SendSilently(std::uint8_t type, Keycode keycode);
    void Flush();
    void Press(Keycode keycode);
    void Release(Keycode keycode);
    [[nodiscard]] bool IsHeld(Keycode keycode) const { return std::ranges::count(held, keycode) > 0; }
    [[nodiscard]] unsigned HeldModifiers() const;
    std::vector<Keycode> PressModifiers(unsigned wanted);
    void PressStroke(const KeyStroke& stroke, std::optional<char> meaning = std::nullopt);
    void LockNumLock(bool locked);
    void LiftPersonsModifiers();
    void PutBackPersonsModifiers();
    [[nodiscard]] bool HoldsWritingKey() const;
    [[nodiscard]] std::optional<KeyStroke> StrokeOfCode(int code);
    void Pace(bool steers);

    KeyGuardian guardian;
    PersonsKeys person{connection};
    KeyboardWatch watch{connection};
    SpareKeys spares{connection};
    Lending lending;
    std::shared_ptr<xkb_keymap> keymap;
    std::optional<KeyboardMap> map;
    KeyboardState seen;
    std::chrono::steady_clock::time_point seenAt;
    int typedSinceSeen = 0;
    std::vector<std::pair<int, Keycode>> heldCodes;
    std::vector<Keycode> held;
    std::vector<Keycode> released; ///< not yet sent
    std::vector<Keycode> lifted;
    std::chrono::steady_clock::time_point lastTyped;
    bool steered = false; ///< the last key moved or deleted, instead of writing
};

X11KeyOutput::Implementation::Implementation(Lending lending) : lending(lending) {
    if (connection.Has(xcb_test_id) && watch.IsAvailable())
        Map();
}

X11KeyOutput::Implementation::~Implementation() {
    if (!IsAvailable())
        return;
    while (!held.empty())
        Release(held.back());
    PutBackPersonsModifiers();
    Flush();
    connection.Synchronize();
    std::this_thread::sleep_until(lastTyped + kLateReaders);
    spares.Detach();
}

const KeyboardMap& X11KeyOutput::Implementation::Map() {
    const unsigned layout = watch.Layout();
    const auto read = watch.NewKeymap([this](Keycode keycode) { return spares.IsLent(keycode); });
    if (read)
        keymap = read;
    if (keymap && (read || !map || map->Layout() != layout)) {
        map.emplace(keymap, layout);
        spares.Attach();
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

void X11KeyOutput::Implementation::Look() {
    seen = watch.Look();
    seenAt = std::chrono::steady_clock::now();
    typedSinceSeen = 0;
}

/// Each look waits for the server, which would make a long text slow. What is missed is a modifier that the
/// person presses within the fraction of a millisecond that a few characters take.
void X11KeyOutput::Implementation::LookInBurst() {
    const bool isFresh = std::chrono::steady_clock::now() < seenAt + kFreshness;
    const bool isUntouched = (seen.base & ~HeldModifiers()) == 0;
    if (!isFresh || !isUntouched || typedSinceSeen == kCharactersPerLook)
        Look();
    ++typedSinceSeen;
}

void X11KeyOutput::Implementation::Send(std::uint8_t type, Keycode keycode) {
    xcb_test_fake_input(connection.Get(), type, keycode, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

void X11KeyOutput::Implementation::SendSilently(std::uint8_t type, Keycode keycode) {
    announce(keycode, type == XCB_KEY_PRESS, kSilent);
    Send(type, keycode);
}

/// Strokes are sent whole: a key of the person's that came between a Shift of ours and its letter would be
/// changed.
void X11KeyOutput::Implementation::Flush() {
    connection.Flush();
    for (const Keycode keycode : released)
        if (!IsHeld(keycode))
            guardian.Released(keycode);
    released.clear();
}

void X11KeyOutput::Implementation::Press(Keycode keycode) {
    guardian.Pressed(keycode);
    held.push_back(keycode);
    // A press of a key that is down already would be lost: the person may be holding it just now, or the
    // device through which programs type may believe it down since we put it back for the person. Of a
    // release that is not needed programs see nothing.
    Send(XCB_KEY_RELEASE, keycode);
    Send(XCB_KEY_PRESS, keycode);
}

void X11KeyOutput::Implementation::Release(Keycode keycode) {
    Send(XCB_KEY_RELEASE, keycode);
    std::erase(held, keycode);
    released.push_back(keycode);
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

void X11KeyOutput::Implementation::LiftPersonsModifiers() {
    if ((seen.base & ~HeldModifiers()) == 0)
        return;
    const Keycodes down = person.Down();
    for (unsigned keycode = 0; keycode < down.size(); ++keycode) {
        const auto key = static_cast<Keycode>(keycode);
        if (!down[keycode] || !map->IsModifier(key) || IsHeld(key))
            continue;
        lifted.push_back(key);
        SendSilently(XCB_KEY_RELEASE, key);
    }
}

void X11KeyOutput::Implementation::PutBackPersonsModifiers() {
    if (lifted.empty())
        return;
    for (const Keycode keycode : lifted)
        SendSilently(XCB_KEY_PRESS, keycode);
    Flush();
    // One that the person has let go since it was lifted would stay down for ever.
    const Keycodes down = person.Down();
    for (const Keycode keycode : lifted)
        if (!down[keycode])
            SendSilently(XCB_KEY_RELEASE, keycode);
    lifted.clear();
}

bool X11KeyOutput::Implementation::HoldsWritingKey() const {
    return std::ranges::any_of(held, [this](Keycode keycode) { return !map->IsModifier(keycode); });
}

/// While we hold Shift, a letter goes out on the key of its capital: on some layouts its own key has another
/// sign there.
std::optional<KeyStroke> X11KeyOutput::Implementation::StrokeOf(char c) {
    if ((HeldModifiers() & KeyboardMap::kShiftBit) != 0)
        c = MakeUpper(c);
    const auto stroke = Map().StrokeOf(CodePointOf(c));
    return stroke || static_cast<unsigned char>(c) < ' ' ? stroke : spares.StrokeOf(c);
}

/// Some programs gather the letters that wait for them, but carry out at once what steers: of "a", Enter and
/// "b" in a burst LibreOffice makes "ab" and the line's end.
void X11KeyOutput::Implementation::Pace(bool steers) {
    if (std::exchange(steered, steers) != steers)
        std::this_thread::sleep_until(lastTyped + kBetweenKinds);
}

void X11KeyOutput::Implementation::Type(char c) {
    const auto stroke = StrokeOf(c);
    if (!stroke)
        return;
    const bool steers = static_cast<unsigned char>(c) < ' ';
    Pace(steers);
    LookInBurst();
    if (spares.Settle(stroke->keycode))
        Look();
    LiftPersonsModifiers();
    PressStroke(*stroke, steers ? std::nullopt : std::optional(c)); // Enter and Tab are what they are
    Release(stroke->keycode);
    if (!HoldsWritingKey())
        PutBackPersonsModifiers();
    Flush();
    lastTyped = std::chrono::steady_clock::now();
}

/// Alone, the key of a digit writes it, also where the layout wants Shift for that.
std::optional<KeyStroke> X11KeyOutput::Implementation::StrokeOfCode(int code) {
    if (code >= '0' && code <= '9' && HeldModifiers() == 0)
        if (const auto stroke = map->StrokeOf(static_cast<char32_t>(code)))
            return stroke;
    return map->StrokeOfCode(code, (seen.locked & map->NumLockBit()) != 0);
}

void X11KeyOutput::Implementation::Down(int code) {
    Look();
    const KeyboardMap& current = Map();
    const auto isKnown = [code](const auto& entry) {
        return entry.first == code;
    };
    const auto stroke = StrokeOfCode(code);
    if (!stroke || std::ranges::any_of(heldCodes, isKnown))
        return;
    heldCodes.emplace_back(code, stroke->keycode);
    if (current.IsModifier(stroke->keycode)) {
        Press(stroke->keycode);
    } else {
        const bool isCommand = (HeldModifiers() & ~KeyboardMap::kShiftBit) != 0;
        Pace(isCommand || !current.Writes(stroke->keycode));
        LiftPersonsModifiers();
        PressStroke(*stroke);
        lastTyped = std::chrono::steady_clock::now();
    }
    Flush();
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
    if (!IsHeld(keycode)) // a character needed the key meanwhile
        return;
    Release(keycode);
    if (map->IsModifier(keycode))
        lifted.push_back(keycode); // from the person, too, should they hold it
    if (!HoldsWritingKey() && !lifted.empty()) {
        const Keycodes down = person.Down();
        std::erase_if(lifted, [&down](Keycode key) { return !down[key]; });
        PutBackPersonsModifiers();
    }
    Flush();
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
    const auto key = implementation->Map().KeyOf(c);
    return key ? key : SpareKeys::KeyOf(c);
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
    implementation->Map();
    return implementation->LendNext();
}

bool X11KeyOutput::IsCapsLockOn() const {
    return IsAvailable() && implementation->IsCapsLockOn();
}

Text X11KeyOutput::KeyName(int code) const {
    if (!IsAvailable())
        return NameOfVirtualKey(code);
    return implementation->Map().NameOf(code);
}

} // namespace ondrilo
