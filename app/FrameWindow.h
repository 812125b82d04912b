#pragma once

#include "platform/Desktop.h"
#include "platform/Geometry.h"
#include "text/Text.h"

#include <cstdint>
#include <filesystem>
#include <optional>

namespace ondrilo {

enum class WindowState { Normal, Maximized, Minimized };

/// What the view paints behind keyboard and editor: the picture stretched to the view if it loads, otherwise
/// the fill.
struct WindowBackground {
    std::filesystem::path picture;
    int fill = 0; ///< 0 plain `first`; 1 gradient from `first` to `second`; any other value paints nothing
    Color first = 0;
    Color second = 0;
    int angle = 0; ///< of the gradient, in degrees
    bool operator==(const WindowBackground&) const = default;
};

/// What happens to the main window. All calls come from the event loop, never from inside a paint or from
/// inside a call of FrameWindow.
class FrameWindowListener {
  public:
    virtual ~FrameWindowListener() = default;
    /// The window was activated.
    virtual void OnActivateView() = 0;
    /// The view as a whole was exposed (shown, uncovered, restored); a key's own paint is none.
    virtual void OnDraw() = 0;
    /// Keys that reach the view itself because it holds the focus and no child of it takes them.
    virtual void OnKeyDown(int code, std::int32_t keyData) = 0;
    virtual void OnKeyUp(int code, std::int32_t keyData) = 0;
    /// An entry of the menu, by its number.
    virtual void OnMenuCommand(int command) = 0;
    /// The window is going away; the last call.
    virtual void OnDestroy() = 0;
};

/// The main window as the session sees it: a title, a menu, one view that holds editor and keyboard, and a
/// status line. On a resize to normal or maximised it posts UM_LAYOUT.
class FrameWindow {
  public:
    virtual ~FrameWindow() = default;

    /// Null ends the calls.
    virtual void SetListener(FrameWindowListener* listener) = 0;
    [[nodiscard]] virtual WindowId Id() const = 0;

    virtual void SetTitle(TextView title) = 0;
    virtual void SetTopMost(bool topMost) = 0;
    /// Whether the window takes the focus when clicked or activated; off, it never does.
    virtual void SetAcceptsFocus(bool accepts) = 0;
    /// Brings the window to the front with the focus; the exception to the rule that it never takes it.
    virtual void Activate() = 0;
    /// The wait cursor.
    virtual void SetBusy(bool busy) = 0;

    /// Shows the window in that state; Normal restores the former size.
    virtual void Show(WindowState state) = 0;
    [[nodiscard]] virtual WindowState State() const = 0;
    /// The whole window, decorations included, on the screen.
    [[nodiscard]] virtual Rectangle Frame() const = 0;
    /// Top left corner of the whole window; the size stays.
    virtual void MoveTo(Point position) = 0;
    /// Top left corner of the view on the screen.
    [[nodiscard]] virtual Point ViewOrigin() const = 0;
    /// The size of the view.
    [[nodiscard]] virtual Size ClientSize() const = 0;
    /// Resizes the window, so that the view gets this size; menu, status line and decorations come on top.
    virtual void FitClient(Size size) = 0;

    virtual void ShowCaption(bool visible) = 0;
    virtual void ShowMenu(bool visible) = 0;
    virtual void ShowStatusBar(bool visible) = 0;
    /// Enables or greys all entries of the menu's top level.
    virtual void EnableMenu(bool enabled) = 0;

    /// Nothing: the view is empty grey, 0xBEBEBE.
    virtual void SetBackground(const std::optional<WindowBackground>& background) = 0;
    /// While held, nothing of the window is repainted.
    virtual void HoldUpdates(bool hold) = 0;
    /// Repaints the view as a whole; OnDraw follows.
    virtual void Redraw() = 0;
    virtual void SetStatusMessage(TextView text) = 0;
    /// Posts the wish to close; returns at once.
    virtual void Close() = 0;
};

} // namespace ondrilo
