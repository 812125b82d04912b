#pragma once

#include "targets/TextSurface.h"

#include <algorithm>

namespace ondrilo {

/// A text box without a screen. What a person does in it (Press, Character) is reported to the listener and
/// then done, as in a real box.
class FakeTextSurface : public TextSurface {
  public:
    void SetListener(TextSurfaceListener* newListener) override { listener = newListener; }
    [[nodiscard]] Text PlainText() const override { return text; }
    [[nodiscard]] std::vector<SurfacePicture> Pictures() const override { return pictures; }
    [[nodiscard]] int SelectionEnd() const override { return std::max(anchor, cursor); }

    void ClearRange(int start, int end) override {
        text.erase(At(start), At(end - start));
        std::erase_if(pictures, [=](const auto& picture) {
            return picture.position >= start && picture.position < end;
        });
        for (auto& picture : pictures)
            if (picture.position >= end)
                picture.position -= end - start;
        MoveCursor(start);
    }
    void ReplaceSelection(TextView replacement) override {
        ClearRange(std::min(anchor, cursor), SelectionEnd());
        text.insert(At(cursor), replacement);
        const int length = static_cast<int>(replacement.size());
        for (auto& picture : pictures)
            if (picture.position >= cursor)
                picture.position += length;
        MoveCursor(cursor + length);
    }
    std::optional<int> AppendPicture(const std::filesystem::path& file) override {
        if (file.extension() != ".bmp")
            return std::nullopt;
        pictures.push_back({static_cast<int>(text.size()), -1});
        text += ' ';
        MoveCursor(static_cast<int>(text.size()));
        return pictures.back().position;
    }
    void SetPictureIndex(int position, int index) override {
        for (auto& picture : pictures)
            if (picture.position == position)
                picture.index = index;
    }

    void SetFontSize(int) override {}
    void SetFontName(TextView) override {}
    void SetWidth(int pixels) override { area.width = pixels; }
    void SetHeight(int pixels) override { area.height = pixels; }
    void Move(Point corner) override { area.x = corner.x, area.y = corner.y; }
    [[nodiscard]] Size GetSize() const override { return {area.width, area.height}; }
    void TakeFocus() override { hasFocus = true; }
    void SetMouseEnabled(bool) override {}
    [[nodiscard]] Point CaretPosition() const override { return caret; }
    [[nodiscard]] Rectangle ScreenArea() const override { return area; }
    [[nodiscard]] bool IsUnder(Point screen) const override { return area.Contains(screen); }
    [[nodiscard]] WindowId Window() const override { return window; }

    /// The text with the insertion point at the end.
    void SetText(TextView newText) {
        text = newText;
        pictures.clear();
        MoveCursor(static_cast<int>(text.size()));
    }
    void MoveCursor(int position) { anchor = cursor = position; }
    void Select(int start, int end) { anchor = start, cursor = end; }

    /// A key goes down. False if it was swallowed.
    bool KeyDown(int code, std::int32_t keyData = 1) {
        if (!listener)
            return true;
        listener->OnKeyDown(code, keyData);
        return !listener->IsBlocked(code);
    }
    void KeyUp(int code) {
        if (listener)
            listener->OnKeyUp(code, 1);
    }
    /// The character of the key that went down: written, or carried out if it is Backspace or Enter.
    void Character(char c) {
        if (listener)
            listener->OnCharacter(c, 1);
        if (c == '\b')
            DeleteBackwards();
        else
            ReplaceSelection(c == '\r' ? "\n" : TextView(&c, 1));
    }

    Text text;
    std::vector<SurfacePicture> pictures;
    int anchor = 0;
    int cursor = 0;
    Rectangle area{0, 0, 400, 100};
    Point caret;
    WindowId window = 1;
    bool hasFocus = false;
    TextSurfaceListener* listener = nullptr;

  private:
    static std::size_t At(int position) { return static_cast<std::size_t>(position); }
    void DeleteBackwards() {
        if (anchor != cursor)
            ReplaceSelection("");
        else if (cursor > 0)
            ClearRange(cursor - 1, cursor);
    }
};

} // namespace ondrilo
