#include "app/CaretFollower.h"

#include "app/AgentPlace.h"

#include <algorithm>

namespace ondrilo {
namespace {

// Pixels between caret and window.
constexpr int kBesideCaret = 100;
constexpr int kAboveCaret = 10;

} // namespace

CaretFollower::CaretFollower(const Environment& environment, const CUserProfileSet& profiles,
                             const COnScreenKeyboard& keyboard, const Targets& targets)
    : frame(environment.frame), desktop(environment.desktop), profiles(profiles), keyboard(keyboard),
      targets(targets) {
}

void CaretFollower::Move() {
    const auto& profile = profiles.Active().properties;
    if (profile.IsOn(option::REPOSICIONAR_JANELA))
        MoveWindowAwayFromCaret();
    else if (profile.IsOn(option::PERSEGUIR_CURSOR_TEXTO))
        FollowCaret();
}

Point CaretFollower::Caret() const {
    return targets.Current() ? targets.Current()->GetCaretPosition() : Point{};
}

Size CaretFollower::AgentRoom() const {
    return profiles.Active().properties.IsOn(option::AGENTE_ACTIVO) ? kAgentRoom : Size{};
}

void CaretFollower::MoveWindowAwayFromCaret() {
    const auto caret = Caret();
    if (caret == Point{})
        return;
    const auto screen = desktop.ScreenArea(caret);
    const auto window = frame.Frame();
    const auto room = AgentRoom();
    const bool caretIsLeft = caret.x < screen.x + screen.width / 2;
    const bool caretIsAbove = caret.y < screen.y + screen.height / 2;
    frame.MoveTo({caretIsLeft ? screen.x + screen.width - window.width : screen.x + room.width,
                  caretIsAbove ? screen.y + screen.height - window.height : screen.y + room.height});
}

void CaretFollower::FollowCaret() {
    const auto caret = Caret();
    if (caret == Point{})
        return;
    const auto size = keyboard.GetSize();
    const bool goesBeside =
        !keyboard.HasOneLine() && (keyboard.IsSingleColumn() || size.width <= size.height);
    if (goesBeside) {
        frame.MoveTo({caret.x + kBesideCaret, caret.y});
        return;
    }
    const auto screen = desktop.ScreenArea(caret);
    const auto window = frame.Frame();
    const int leftmost = screen.x + AgentRoom().width;
    const int rightmost = std::max(leftmost, screen.x + screen.width - window.width);
    frame.MoveTo(
        {std::clamp(caret.x - window.width / 2, leftmost, rightmost), caret.y - kAboveCaret - window.height});
}

} // namespace ondrilo
