#include "platform/qt/AccessiblePrograms.h"

#include <QDBusArgument>

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace ondrilo {
namespace {

constexpr std::size_t kMostPrograms = 64;

constexpr unsigned kPasswordRole = 40;
constexpr unsigned kTerminalRole = 60;
constexpr unsigned kEditableState = 1U << 7;
constexpr unsigned kFocusedState = 1U << 12;

bool IsOurs(std::uint32_t process) {
    return process == static_cast<std::uint32_t>(getpid());
}

AccessibleFocus::Kind KindOf(const QVariantList& role) {
    const auto number = role.isEmpty() ? 0 : role[0].toUInt();
    return number == kPasswordRole   ? AccessibleFocus::Kind::Password
           : number == kTerminalRole ? AccessibleFocus::Kind::Terminal
                                     : AccessibleFocus::Kind::Other;
}

/// The first 32 states, which hold those that matter here.
unsigned StatesOf(const QVariantList& answer) {
    if (answer.isEmpty())
        return 0;
    const auto list = answer[0].value<QDBusArgument>();
    unsigned states = 0;
    list.beginArray();
    if (!list.atEnd())
        list >> states;
    return states;
}

/// Some programs give the focus to a whole document and move the caret in its paragraphs. What another field
/// does while a password is being written does not count, whatever it says of itself.
bool HasCaret(unsigned states, AccessibleFocus::Kind focus) {
    return (states & kFocusedState) != 0 ||
           ((states & kEditableState) != 0 && focus != AccessibleFocus::Kind::Password);
}

} // namespace

AccessiblePrograms::AccessiblePrograms(Changed changed)
    : changed(std::move(changed)),
      connection(
          {.focused = [this](const AccessibleObject& object) { TakeFocus(object); },
           .caretMoved = [this](const AccessibleObject& object, int offset) { TakeCaret(object, offset); },
           .gone =
               [this](const QString& name) {
                   programs.erase(name);
               }}) {
}

const AccessibleFocus* AccessiblePrograms::FocusOf(std::uint32_t process) const {
    const Program* last = nullptr;
    for (const auto& [name, program] : programs)
        if (program.process == process && !program.focus.object.path.isEmpty() &&
            (!last || program.heard > last->heard))
            last = &program;
    return last ? &last->focus : nullptr;
}

void AccessiblePrograms::TakeFocus(const AccessibleObject& object) {
    if (auto* program = Hear(object.program)) {
        program->elsewhere.reset();
        SetFocus(*program, {object});
    }
}

void AccessiblePrograms::TakeCaret(const AccessibleObject& object, int offset) {
    auto* program = Hear(object.program);
    if (!program)
        return;
    if (program->focus.object == object) {
        program->focus.caret = offset;
        changed(program->process);
    } else {
        program->elsewhere = {object, offset};
        AskState(*program);
    }
}

AccessiblePrograms::Program* AccessiblePrograms::Hear(const QString& name) {
    if (!programs.contains(name))
        MakeRoom();
    auto& program = programs[name];
    program.heard = ++events;
    if (program.process == 0 && !program.processAsked)
        AskProcess(name, program);
    return IsOurs(program.process) ? nullptr : &program;
}

void AccessiblePrograms::MakeRoom() {
    if (programs.size() < kMostPrograms)
        return;
    programs.erase(
        std::min_element(programs.begin(), programs.end(), [](const auto& left, const auto& right) {
            return left.second.heard < right.second.heard;
        }));
}

/// What was told meanwhile is looked into as soon as it is known not to be ourselves.
void AccessiblePrograms::AskProcess(const QString& name, Program& program) {
    program.processAsked = connection.AskProcess(name, [this, &program](std::uint32_t process) {
        program.processAsked.reset();
        program.process = process;
        if (process == 0 || IsOurs(process))
            return;
        if (!program.focus.object.path.isEmpty())
            SetFocus(program, program.focus);
        AskState(program);
    });
}

void AccessiblePrograms::SetFocus(Program& program, AccessibleFocus focus) {
    // A key that is swallowed takes the focus away for a moment, and what is typed then is no secret for
    // that.
    if (focus.object == program.focus.object)
        focus.kind = program.focus.kind;
    program.focus = std::move(focus);
    AskKind(program);
    changed(program.process);
}

void AccessiblePrograms::AskKind(Program& program) {
    if (program.process == 0 || program.kindAsked)
        return;
    const auto& object = program.focus.object;
    program.kindAsked = connection.Ask(object, AccessibilityConnection::kAccessible, "GetRole", {}, "u",
                                       [this, &program, object](const QVariantList& role) {
                                           program.kindAsked.reset();
                                           if (program.focus.object == object)
                                               program.focus.kind = KindOf(role);
                                           else
                                               AskKind(program);
                                       });
}

void AccessiblePrograms::AskState(Program& program) {
    if (program.process == 0 || program.stateAsked || !program.elsewhere)
        return;
    const auto& object = program.elsewhere->object;
    program.stateAsked = connection.Ask(object, AccessibilityConnection::kAccessible, "GetState", {}, "au",
                                        [this, &program, object](const QVariantList& answer) {
                                            program.stateAsked.reset();
                                            if (!program.elsewhere)
                                                return;
                                            if (program.elsewhere->object != object)
                                                return AskState(program);
                                            const auto caret =
                                                *std::exchange(program.elsewhere, std::nullopt);
                                            if (HasCaret(StatesOf(answer), program.focus.kind))
                                                SetFocus(program, {caret.object, caret.offset});
                                        });
}

} // namespace ondrilo
