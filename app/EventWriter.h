#pragma once

#include "app/FrameWindow.h"
#include "app/SessionState.h"
#include "app/Targets.h"
#include "keyboards/COnScreenKeyboard.h"
#include "logging/EventLog.h"
#include "platform/Keyboard.h"
#include "profiles/store/CUserProfileSet.h"

#include <optional>

namespace ondrilo {

/// How the person reached what they did.
struct ActionOrigin {
    enum class Kind { PhysicalKey, Mouse, Switch, ScanTimer };
    Kind kind = Kind::Mouse;
    int keyCode = 0; ///< of a physical key

    static ActionOrigin Key(int code) { return {Kind::PhysicalKey, code}; }
    static ActionOrigin OfMouse() { return {Kind::Mouse, 0}; }
    static ActionOrigin OfSwitch() { return {Kind::Switch, 0}; }
};

/// Writes what happens into the event log, if one is open. While the person writes a password nothing is
/// told: keys, their places and the steps of scanning would give it away. Callers that build a text for it,
/// and those that count what the log tells, ask IsOpen first.
class EventWriter {
  public:
    EventWriter(const FrameWindow& frame, const KeyOutput& keys, EventLog& log,
                const CUserProfileSet& profiles, const Targets& targets, const COnScreenKeyboard& keyboard,
                SessionState& state);

    [[nodiscard]] bool IsOpen() const;
    /// An action with its origin in the event column.
    void Action(const ActionOrigin& origin, TextView type, std::optional<COnScreenKeyIdentifier> key = {});
    void LineSelected(int line);
    void GroupSelected(int line, int group);
    /// An event that has no origin of its own.
    void Event(TextView event, TextView type);
    /// A physical key that wrote, by the person or by the system.
    void TypedKey(int code, bool simulated);
    void RawKey(int code);
    void RawButton(int button);
    /// One that has just reached the text.
    void Character(char c);
    /// Takes the message as it is now for the context of the next events.
    void UpdateContext();

  private:
    struct Element {
        Text address;
        Text center;
    };
    void Write(TextView event, TextView type, const Element& element);
    [[nodiscard]] const Text& Page() const;
    [[nodiscard]] Text EventOf(const ActionOrigin& origin) const;
    [[nodiscard]] Text KeyEvent(int code) const;
    [[nodiscard]] Element ElementOf(COnScreenKeyIdentifier key) const;

    const FrameWindow& frame;
    const KeyOutput& keys;
    EventLog& log;
    const CUserProfileSet& profiles;
    const Targets& targets;
    const COnScreenKeyboard& keyboard;
    SessionState& state;
};

} // namespace ondrilo
