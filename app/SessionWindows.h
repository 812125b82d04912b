#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "platform/Geometry.h"
#include "platform/Measure.h"
#include "targets/TextSurface.h"
#include "text/Text.h"

#include <memory>

namespace ondrilo {

/// Look of a small text window.
struct TextWindowStyle {
    Font font;
    Color background = 0;
    Color text = 0;
    int margin = 0; ///< pixels left and right of the text
    bool operator==(const TextWindowStyle&) const = default;
};

/// `CTextWindow`: a small borderless top-most window with one line of text, left aligned at the margin. As
/// wide as the text and twice the margin, as tall as the font. Hidden at first; never takes the focus.
class TextWindow {
  public:
    virtual ~TextWindow() = default;
    /// Resizes and repaints at once, without waiting for the event loop, so that it shows during long work.
    virtual void SetText(TextView text) = 0;
    [[nodiscard]] virtual Size GetSize() const = 0;
    /// Places the lower left corner on the screen.
    virtual void MoveTo(Point lowerLeft) = 0;
    /// Shows without activating, at once.
    virtual void Show() = 0;
    virtual void Hide() = 0;
    [[nodiscard]] virtual bool IsVisible() const = 0;
};

/// The on-screen keyboard inside the view. Draws the keyboard, follows its changes and posts UM_KEY_PRESS,
/// UM_KEY_HOVER and UM_KEY_DOUBLE_CLICK with the packed address of the key; calls nothing itself.
class KeyboardWindow {
  public:
    virtual ~KeyboardWindow() = default;
    /// Top left corner inside the view; the size is the keyboard's.
    virtual void MoveTo(Point position) = 0;
};

/// Makes the windows that live as long as a session, or shorter. Dropping one destroys it.
class SessionWindows {
  public:
    virtual ~SessionWindows() = default;
    /// The internal editor's text box, a child of the view, of no size yet.
    [[nodiscard]] virtual std::unique_ptr<TextSurface> CreateEditorBox() = 0;
    /// `keyboard` outlives the window.
    [[nodiscard]] virtual std::unique_ptr<KeyboardWindow>
    CreateKeyboardWindow(COnScreenKeyboard& keyboard) = 0;
    /// A child of the view: gone when the view is.
    [[nodiscard]] virtual std::unique_ptr<TextWindow> CreatePreview(const TextWindowStyle& style) = 0;
    /// A window of the desktop: it stands even while there is no session.
    [[nodiscard]] virtual std::unique_ptr<TextWindow> CreateNotice(const TextWindowStyle& style) = 0;
};

} // namespace ondrilo
