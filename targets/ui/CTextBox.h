#pragma once

#include "platform/Keyboard.h"
#include "targets/TextSurface.h"
#include "targets/ui/TextPictures.h"

#include <QTextEdit>

namespace ondrilo {

/// The text box of the internal editor. Pictures are objects of one position each; all else is plain text
/// that Windows-1252 can hold, in one font. Undo, cut, copy and paste are the person's, with the usual keys.
class CTextBox : public QTextEdit, public TextSurface {
    Q_OBJECT

  public:
    /// `layout` tells the keys of the characters that input methods compose; it outlives the box.
    CTextBox(const KeyOutput& layout, QWidget* parent);

    void SetListener(TextSurfaceListener* newListener) override { listener = newListener; }
    [[nodiscard]] Text PlainText() const override;
    [[nodiscard]] std::vector<SurfacePicture> Pictures() const override;
    [[nodiscard]] int SelectionEnd() const override;
    void ClearRange(int start, int end) override;
    void ReplaceSelection(TextView text) override;
    std::optional<int> AppendPicture(const std::filesystem::path& file) override;
    void SetPictureIndex(int position, int index) override;
    void SetFontSize(int points) override;
    void SetFontName(TextView name) override;
    void SetWidth(int pixels) override { resize(pixels, height()); }
    void SetHeight(int pixels) override { resize(width(), pixels); }
    void Move(Point corner) override { move(corner.x, corner.y); }
    [[nodiscard]] Size GetSize() const override { return {width(), height()}; }
    void TakeFocus() override { setFocus(Qt::OtherFocusReason); }
    void SetMouseEnabled(bool enabled) override { mouseEnabled = enabled; }
    [[nodiscard]] Point CaretPosition() const override;
    [[nodiscard]] Rectangle ScreenArea() const override;
    [[nodiscard]] bool IsUnder(Point screen) const override;
    [[nodiscard]] WindowId Window() const override { return window()->winId(); }

  Q_SIGNALS:
    /// The person clicked into the box in order to write there.
    void clickedInto();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    [[nodiscard]] QTextCursor Range(int start, int end) const;
    bool ReportButton(QMouseEvent* event, bool down);
    void EndUndoStep();
    [[nodiscard]] bool ReportKeysDown(const std::vector<int>& codes, std::int32_t keyData);
    void ReportKeysUp(const std::vector<int>& codes, std::int32_t keyData);
    void ReportCharacter(char c, std::int32_t keyData);

    const KeyOutput& layout;
    TextSurfaceListener* listener = nullptr;
    TextPictures pictures;
    bool mouseEnabled = true;
};

} // namespace ondrilo
