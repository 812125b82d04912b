#pragma once

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

/// Writes what happens into the event log, if one is open. Callers that build a text for it ask IsOpen first.
class EventWriter {
  public:
    EventWriter(EventLog& log, const CUserProfileSet& profiles, const KeyOutput& keys);

    [[nodiscard]] bool IsOpen() const { return log.IsOpen(); }
    /// An action with its origin in the event column.
    void Action(const ActionOrigin& origin, TextView type, std::optional<COnScreenKeyIdentifier> key = {});
    /// `prefix` and the text, its blanks as "_".
    void ActionWithText(const ActionOrigin& origin, TextView prefix, TextView text,
                        std::optional<COnScreenKeyIdentifier> key = {});
    /// An event that has no origin of its own.
    void Event(TextView event, TextView type);
    /// A physical key that wrote, by the person or by the system.
    void TypedKey(int code, bool simulated);
    void RawKey(int code);
    void RawButton(int button);
    void Character(char c);
    void UpdateContext();

  private:
    [[nodiscard]] Text EventOf(const ActionOrigin& origin) const;
    [[nodiscard]] Text KeyEvent(int code) const;

    EventLog& log;
    const CUserProfileSet& profiles;
    const KeyOutput& keys;
};

} // namespace ondrilo
