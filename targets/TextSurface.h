#pragma once

#include "platform/Desktop.h"
#include "platform/Geometry.h"
#include "platform/MessageQueue.h"
#include "text/Text.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace ondrilo {

/// What a person does in a text box. All calls come on the user-interface thread, in the order of the events.
class TextSurfaceListener {
  public:
    virtual ~TextSurfaceListener() = default;
    /// `code` is a virtual key code. The box asks IsBlocked after the report; a blocked key is swallowed
    /// then: it changes nothing and gives no character.
    virtual void OnKeyDown(int code, std::int32_t keyData) = 0;
    virtual void OnKeyUp(int code, std::int32_t keyData) = 0;
    [[nodiscard]] virtual bool IsBlocked(int code) const = 0;
    /// A character is about to be written. Backspace (8), Tab (9) and Enter (13) are characters too, and so
    /// are those of Control with a letter (1 to 26).
    virtual void OnCharacter(char character, std::int32_t keyData) = 0;
    /// UM_LEFT_DOWN to UM_MIDDLE_UP; reported also while the mouse is disabled.
    virtual void OnMouseButton(Message button) = 0;
    /// In the box's own coordinates.
    virtual void OnPointerMoved(Point position) = 0;
};

/// A picture in the text: where it stands, and the number it was given, -1 while it has none.
struct SurfacePicture {
    int position = 0;
    int index = -1;
    bool operator==(const SurfacePicture&) const = default;
};

/// A text box with pictures. Each character, each line break and each picture is one position; positions lie
/// between 0 and the length of the text.
class TextSurface {
  public:
    virtual ~TextSurface() = default;

    /// Null ends the calls.
    virtual void SetListener(TextSurfaceListener* listener) = 0;

    /// The text, one byte a position: "\n" for a line break, a blank for a picture, "?" for what Windows-1252
    /// lacks.
    [[nodiscard]] virtual Text PlainText() const = 0;
    /// In the order of their positions.
    [[nodiscard]] virtual std::vector<SurfacePicture> Pictures() const = 0;
    /// The end of the selection, which is the insertion point if nothing is selected.
    [[nodiscard]] virtual int SelectionEnd() const = 0;

    /// Deletes the positions from `start` to, and without, `end`; the insertion point is at `start` then. The
    /// person can undo it.
    virtual void ClearRange(int start, int end) = 0;
    /// Puts `text` (line breaks as "\n") in the place of the selection, the insertion point after it. The
    /// person can undo it.
    virtual void ReplaceSelection(TextView text) = 0;
    /// Puts a picture without a number at the end of the text, the insertion point after it and in view.
    /// Gives its position, or nothing if the file is no picture.
    virtual std::optional<int> AppendPicture(const std::filesystem::path& file) = 0;
    virtual void SetPictureIndex(int position, int index) = 0;

    /// For the text that stands there and for what is written next; the selection stays.
    virtual void SetFontSize(int points) = 0;
    virtual void SetFontName(TextView name) = 0;

    /// Logical pixels inside the parent.
    virtual void SetWidth(int pixels) = 0;
    virtual void SetHeight(int pixels) = 0;
    virtual void Move(Point corner) = 0;
    [[nodiscard]] virtual Size GetSize() const = 0;

    virtual void TakeFocus() = 0;
    /// While disabled, mouse buttons are reported but do nothing in the box.
    virtual void SetMouseEnabled(bool enabled) = 0;
    /// Top left of the caret on the screen; (0, 0) while unknown.
    [[nodiscard]] virtual Point CaretPosition() const = 0;
    /// The box's visible text area on the screen.
    [[nodiscard]] virtual Rectangle ScreenArea() const = 0;
    /// True if the point of the screen shows the box, and no other window over it.
    [[nodiscard]] virtual bool IsUnder(Point screen) const = 0;
    /// The top-level window that the box is part of.
    [[nodiscard]] virtual WindowId Window() const = 0;
};

} // namespace ondrilo
