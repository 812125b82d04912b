#pragma once

#include "platform/qt/AccessibilityConnection.h"

#include <map>
#include <optional>

namespace ondrilo {

/// What has the focus in another program, be it a text or not.
struct AccessibleFocus {
    AccessibleObject object;
    std::optional<int> caret = std::nullopt; ///< as last told
    enum class Kind { Awaited, Password, Terminal, Other };
    Kind kind = Kind::Awaited;
};

/// Remembers for each program on the bus what last got the focus there or moved its caret, whether anybody
/// wants to know or not: a program tells of its focus only when it changes. Our own process is left out.
class AccessiblePrograms {
  public:
    /// Focus or caret of that process are no longer what they were.
    using Changed = std::function<void(std::uint32_t process)>;
    explicit AccessiblePrograms(Changed changed);

    /// What that process told last; none if it has not told anything.
    [[nodiscard]] const AccessibleFocus* FocusOf(std::uint32_t process) const;
    [[nodiscard]] AccessibilityConnection& Connection() { return connection; }

  private:
    struct Caret {
        AccessibleObject object;
        int offset = 0;
    };
    struct Program {
        std::uint32_t process = 0; ///< 0 until the bus has told
        std::uint64_t heard = 0;   ///< counts over all programs
        AccessibleFocus focus;
        std::optional<Caret> elsewhere; ///< a caret that moved where, as far as is known, the focus is not
        AccessibilityConnection::Question processAsked, kindAsked, stateAsked;
    };

    void TakeFocus(const AccessibleObject& object);
    void TakeCaret(const AccessibleObject& object, int offset);
    /// None for our own process.
    Program* Hear(const QString& name);
    void MakeRoom();
    void AskProcess(const QString& name, Program& program);
    void SetFocus(Program& program, AccessibleFocus focus);
    void AskKind(Program& program);
    void AskState(Program& program);

    Changed changed;
    AccessibilityConnection connection;
    std::map<QString, Program> programs; ///< by their names on the bus
    std::uint64_t events = 0;
};

} // namespace ondrilo
