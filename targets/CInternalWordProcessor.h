#pragma once

#include "platform/MessageQueue.h"
#include "targets/BlockedKeys.h"
#include "targets/ContextWordProcessor.h"
#include "targets/SurfaceText.h"
#include "targets/TextSurface.h"
#include "targets/UnitEndPosting.h"

#include <memory>
#include <optional>

namespace ondrilo {

/// The internal editor: text and pictures in a box of the session's own window. Text is written as simulated
/// keys, so that the box reports it like what the person types; deletions are made in the box at once.
class CInternalWordProcessor : public ContextWordProcessor, private TextSurfaceListener {
  public:
    CInternalWordProcessor(std::unique_ptr<TextSurface> textBox, CKeyboard& keyboard, Desktop& desktop,
                           MessageQueue& queue);
    ~CInternalWordProcessor() override;

    [[nodiscard]] TextSurface& TextBox() { return *textBox; }

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
    [[nodiscard]] WindowId GetTargetWindow() const override;
    [[nodiscard]] Point GetCaretPosition() const override;
    [[nodiscard]] bool IsPointerOverTarget() const override;
    void MovePointerOutOf(Rectangle rectangle) override;
    void SetWidth(int pixels) override;
    void SetHeight(int pixels) override;
    [[nodiscard]] int GetWidth() const override;
    [[nodiscard]] int GetHeight() const override;
    void SetFontSize(int points) override;
    void SetFontName(TextView name) override;
    void Move(int x, int y) override;
    std::optional<int> InsertImage(const std::filesystem::path& path) override;
    void SetImageLabels(int position, TextView label, TextView tag) override;
    [[nodiscard]] bool IsInsideWord() const override;
    [[nodiscard]] bool IsAtImage() const override;
    [[nodiscard]] bool IsAfterImage() const override;
    [[nodiscard]] Text GetImageLabelAtCursor() const override;
    [[nodiscard]] Text GetLastImageLabel() const override;
    [[nodiscard]] std::vector<Text> GetSentenceImageLabels() const override;
    void ClearAll() override;
    [[nodiscard]] Text GetLabelledSentenceLeft() const override;
    [[nodiscard]] Text GetLabelledSentenceRight() const override;
    [[nodiscard]] Text GetLabelledSentence() const override;
    [[nodiscard]] Text GetLabelledPreviousSentence() const override;
    [[nodiscard]] Text GetLabelledSecondPreviousSentence() const override;
    [[nodiscard]] Text GetLabelledPreviousWord() const override;
    [[nodiscard]] Text GetLabelledSecondPreviousWord() const override;
    [[nodiscard]] Text GetTextWithLabels() const override;
    [[nodiscard]] Text GetTextWithTags() const override;
    void DeleteCurrentWord() override;
    void DeleteCurrentSentence() override;

  private:
    void OnKeyDown(int code, std::int32_t keyData) override;
    void OnKeyUp(int code, std::int32_t keyData) override;
    [[nodiscard]] bool IsBlocked(int code) const override;
    void OnCharacter(char character, std::int32_t keyData) override;
    void OnMouseButton(Message button) override;
    void OnPointerMoved(Point position) override;

    /// The text around the insertion point, with the plain labels or the tags in the place of the pictures.
    [[nodiscard]] TextContext Context() const override;
    [[nodiscard]] TextContext Tagged() const;
    [[nodiscard]] std::optional<SurfacePicture> PictureAtCursor() const;
    [[nodiscard]] std::optional<SurfacePicture> PictureBeforeCursor() const;
    /// The position after the last terminator, in the text or in a picture's label, before `end`.
    [[nodiscard]] int SentenceStart(int end) const;
    void DeleteRight(std::size_t length);
    void ClearRange(int start, int end);
    void Type(TextView text);
    void TypeRest(TextView text);

    std::unique_ptr<TextSurface> textBox;
    Desktop& desktop;
    MessageQueue& queue;
    UnitEndPosting unitEnds;
    BlockedKeys blockedKeys;
    std::optional<std::int32_t> lastMousePosition;
    std::vector<Text> imageLabels;
    std::vector<Text> imageTags;
};

} // namespace ondrilo
