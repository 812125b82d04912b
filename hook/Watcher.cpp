#include "hook/Watcher.h"

namespace ondrilo {

Watcher::Watcher(WindowId target)
    : focusChanges(windows.OnFocusChange([this] { LookForFocus(); })), process(windows.ProcessOf(target)) {
    LookForFocus();
}

void Watcher::LookForFocus() {
    isActive = process != 0 && windows.ProcessOf(windows.ForegroundWindow()) == process;
}

bool Watcher::IsAt(Point point) const {
    const auto x = static_cast<std::int16_t>(point.x);
    const auto y = static_cast<std::int16_t>(point.y);
    xcb_window_t shown = queries.Root();
    for (auto below = shown; below != XCB_WINDOW_NONE;) {
        shown = below;
        const auto cookie = xcb_translate_coordinates(queries.Get(), queries.Root(), shown, x, y);
        const auto reply = Owned(xcb_translate_coordinates_reply(queries.Get(), cookie, nullptr));
        below = reply ? reply->child : xcb_window_t{XCB_WINDOW_NONE};
    }
    return process != 0 && windows.ProcessOf(shown) == process;
}

} // namespace ondrilo
