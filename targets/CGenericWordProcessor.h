#pragma once

#include "platform/AccessibleText.h"
#include "platform/TargetHook.h"
#include "targets/ContextWordProcessor.h"
#include "targets/UnitEndPosting.h"

#include <functional>
#include <optional>

namespace ondrilo {

/// Any other program as the place where text goes. It gives no view of its text, so a shadow is kept of what
/// the keys write there. What could have moved the insertion point in a way that cannot be followed (a click,
/// Home, an arrow up) throws the shadow away; where the program tells its text to assistive programs, the
/// shadow then becomes the paragraph that really stands around the caret. Text goes out as simulated keys,
/// deletions as Backspace. Of a password there is no shadow.
class CGenericWordProcessor : public ContextWordProcessor {
  public:
    struct Surroundings {
        TargetHook& hook;
        AccessibleText& accessible;
        Desktop& desktop;
        MessageQueue& queue;
        /// The shadow has become the real text.
        std::function<void()> contextRead;
    };
    CGenericWordProcessor(WindowId targetWindow, CKeyboard& keyboard, Surroundings surroundings);

    /// False if the program cannot be watched.
    [[nodiscard]] bool Create() override;
    void Destroy() override;

    void WriteWord(TextView word) override;
    void DeleteCurrentWordLeft() override;
    void WriteSentence(TextView sentence) override;
    void DeleteCurrentSentenceLeft() override;
    void BlockKeys(int first, int last) override;
    void UnblockKeys(int first, int last) override;
    void DisableMouse() override;
    void EnableMouse() override;
    [[nodiscard]] WindowId GetTargetWindow() const override { return targetWindow; }
    [[nodiscard]] Point GetCaretPosition() const override;
    [[nodiscard]] bool IsPointerOverTarget() const override;
    void MovePointerOutOf(Rectangle rectangle) override;
    [[nodiscard]] bool IsPassword() const override;

    // What only a box of our own can do.
    void SetWidth(int) override {}
    void SetHeight(int) override {}
    [[nodiscard]] int GetWidth() const override { return 0; }
    [[nodiscard]] int GetHeight() const override { return 0; }
    void SetFontSize(int) override {}
    void SetFontName(TextView) override {}
    void Move(int, int) override {}
    std::optional<int> InsertImage(const std::filesystem::path&) override { return std::nullopt; }
    void SetImageLabels(int, TextView, TextView) override {}
    [[nodiscard]] bool IsInsideWord() const override { return true; }
    [[nodiscard]] bool IsAtImage() const override { return false; }
    [[nodiscard]] bool IsAfterImage() const override { return false; }
    [[nodiscard]] Text GetImageLabelAtCursor() const override { return {}; }
    [[nodiscard]] Text GetLastImageLabel() const override { return {}; }
    [[nodiscard]] std::vector<Text> GetSentenceImageLabels() const override { return {}; }
    void ClearAll() override {}
    [[nodiscard]] Text GetTextWithLabels() const override { return {}; }
    [[nodiscard]] Text GetTextWithTags() const override { return {}; }
    void DeleteCurrentWord() override {}
    void DeleteCurrentSentence() override {}

  private:
    [[nodiscard]] TextContext Context() const override { return {text, cursor}; }
    void OnEvent(const MessageEvent& event);
    void OnFocusChange();
    void OnCaretMoved(bool isElsewhere);
    void KeyDown(int code, std::int32_t keyData);
    void Character(char c, std::int32_t keyData);
    void Button();
    void Insert(char c);
    void Erase(std::size_t place);
    void ResetShadow();
    void AskForText();
    void Complete(TextView whole, TextView typed);

    WindowId targetWindow;
    TargetHook& hook;
    AccessibleText& accessible;
    Desktop& desktop;
    MessageQueue& queue;
    std::function<void()> contextRead;
    UnitEndPosting unitEnds;
    Text text; ///< the shadow
    std::size_t cursor = 0;
    /// A click throws the shadow away; clear while the mouse is disabled, since clicks are then for our keys.
    bool mouseTracked = true;
    bool accessibleRefresh = false; ///< the real text is awaited
    bool hasTyped = false;          ///< since the real text was read
    std::optional<std::int32_t> lastMousePosition;
    WindowId activeWindow; ///< the program's window that has the focus: the target's or, say, a dialog of it
    RegistrationHandle focusHook;
};

} // namespace ondrilo
