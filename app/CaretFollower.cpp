#include "app/CaretFollower.h"

#include "app/AgentPlace.h"

#include <algorithm>
#include <array>

namespace ondrilo {
namespace {

// Pixels between caret and window.
constexpr int kBesideCaret = 100;
constexpr int kAboveCaret = 10;
constexpr int kBelowCaret = 40; // its place is that of its upper end: a line of text lies in between

/// The nearest place to `corner` for a window of that size inside `area`; one that is too large begins at the
/// corner of the area, so that its title and its first keys can be reached.
Point Inside(Rectangle area, Size window, Point corner) {
    const int right = std::max(area.x, area.x + area.width - window.width);
    const int bottom = std::max(area.y, area.y + area.height - window.height);
    return {std::clamp(corner.x, area.x, right), std::clamp(corner.y, area.y, bottom)};
}

/// Where a window stands that follows the caret: at its right or above it, and where there is no room, on
/// another side of it.
Point PlaceAt(Point caret, Rectangle area, Size window, bool beside) {
    const auto inside = [&](Point corner) {
        return Inside(area, window, corner);
    };
    const int centred = inside({caret.x - window.width / 2, 0}).x;
    const int level = inside({0, caret.y}).y;
    const Point right{caret.x + kBesideCaret, level};
    const Point left{caret.x - kBesideCaret - window.width, level};
    const Point above{centred, caret.y - kAboveCaret - window.height};
    const Point below{centred, caret.y + kBelowCaret};
    const auto places =
        beside ? std::array{right, left, above, below} : std::array{above, below, right, left};
    const auto* fitting =
        std::find_if(places.begin(), places.end(), [&](Point corner) { return inside(corner) == corner; });
    return fitting == places.end() ? inside(places.front()) : *fitting;
}

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

bool CaretFollower::GoesBeside() const {
    const auto size = keyboard.GetSize();
    return !keyboard.HasOneLine() && (keyboard.IsSingleColumn() || size.width <= size.height);
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
    const Point corner{caretIsLeft ? screen.x + screen.width - window.width : screen.x + room.width,
                       caretIsAbove ? screen.y + screen.height - window.height : screen.y + room.height};
    MoveTo(Inside(screen, {window.width, window.height}, corner));
}

void CaretFollower::FollowCaret() {
    const auto caret = Caret();
    if (caret == Point{})
        return;
    auto area = desktop.ScreenArea(caret);
    const int room = AgentRoom().width;
    area.x += room;
    area.width -= room;
    const auto window = frame.Frame();
    MoveTo(PlaceAt(caret, area, {window.width, window.height}, GoesBeside()));
}

/// Nobody sees a move to where the window stands, but some desktops draw the window anew for it.
void CaretFollower::MoveTo(Point corner) {
    const auto window = frame.Frame();
    if (frame.State() == WindowState::Normal && corner != Point{window.x, window.y})
        frame.MoveTo(corner);
}

} // namespace ondrilo
