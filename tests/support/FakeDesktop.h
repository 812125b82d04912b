#pragma once

#include "platform/Desktop.h"

#include <map>
#include <set>
#include <vector>

namespace ondrilo {

/// Windows, focus and pointer as a test sets them.
class FakeDesktop : public Desktop {
  public:
    [[nodiscard]] WindowId ForegroundWindow() const override { return foreground; }
    void Activate(WindowId window) override { MoveFocus(window); }
    [[nodiscard]] Text TitleOf(WindowId window, std::size_t limit) const override {
        const auto title = titles.find(window);
        return title == titles.end() ? Text() : title->second.substr(0, limit);
    }
    [[nodiscard]] bool IsOurs(WindowId window) const override { return ours.contains(window); }
    [[nodiscard]] std::uint32_t ProcessOf(WindowId window) const override {
        const auto program = programs.find(window);
        return program == programs.end() ? 0 : static_cast<std::uint32_t>(program->second);
    }
    [[nodiscard]] Rectangle ClientArea(WindowId) const override { return {}; }
    [[nodiscard]] bool IsUnder(WindowId, Point) const override { return false; }
    [[nodiscard]] RegistrationHandle OnFocusChange(std::function<void()> changed) override {
        listeners[++lastListener] = std::move(changed);
        return std::make_unique<Handle>(*this, lastListener);
    }
    [[nodiscard]] Point PointerPosition() const override { return pointer; }
    void MovePointer(Point position) override { pointer = position; }
    [[nodiscard]] Rectangle ScreenArea(Point near) const override {
        for (const auto& area : screens)
            if (area.Contains(near))
                return area;
        return screens.front();
    }

    /// The person goes to another window.
    void MoveFocus(WindowId window) {
        foreground = window;
        const auto told = listeners;
        for (const auto& [number, changed] : told)
            if (listeners.contains(number))
                changed();
    }
    [[nodiscard]] bool IsObserved() const { return !listeners.empty(); }

    WindowId foreground = 0;
    std::map<WindowId, Text> titles;
    std::set<WindowId> ours;
    std::map<WindowId, int> programs; ///< process number of each window
    Point pointer;
    std::vector<Rectangle> screens{{0, 0, 1920, 1080}}; ///< the first one is the primary one

  private:
    struct Handle : Registration {
        Handle(FakeDesktop& owner, int number) : owner(owner), number(number) {}
        ~Handle() override { owner.listeners.erase(number); }
        FakeDesktop& owner;
        int number;
    };
    std::map<int, std::function<void()>> listeners;
    int lastListener = 0;
};

} // namespace ondrilo
