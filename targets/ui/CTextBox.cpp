#include "targets/ui/CTextBox.h"

#include "platform/qt/QtConversion.h"
#include "targets/ui/KeyStrokes.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextDocumentFragment>

#include <algorithm>

namespace ondrilo {
namespace {

bool IsLineBreak(QChar c) {
    return c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
}

/// One byte for each code unit, so that positions stay what they are.
char ByteOf(QChar c) {
    if (IsLineBreak(c))
        return '\n';
    if (c == QChar(TextPictures::kPlace))
        return ' ';
    return static_cast<char>(Encode(c.unicode()).value_or('?'));
}

bool IsWritable(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return Encode(c.unicode()).has_value(); });
}

/// The character of a key event, or nothing. Delete gives one in Qt only, and Alt chooses from menus.
std::optional<char> CharacterOf(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Delete || event.modifiers().testFlag(Qt::AltModifier))
        return std::nullopt;
    const auto text = event.text();
    if (text.size() != 1 || !IsWritable(text))
        return std::nullopt;
    return FromQString(text).front();
}

std::optional<Message> MessageOf(Qt::MouseButton button, bool down) {
    switch (button) {
    case Qt::LeftButton:
        return down ? Message::UM_LEFT_DOWN : Message::UM_LEFT_UP;
    case Qt::RightButton:
        return down ? Message::UM_RIGHT_DOWN : Message::UM_RIGHT_UP;
    case Qt::MiddleButton:
        return down ? Message::UM_MIDDLE_DOWN : Message::UM_MIDDLE_UP;
    default:
        return std::nullopt;
    }
}

} // namespace

CTextBox::CTextBox(const KeyOutput& layout, QWidget* parent)
    : QTextEdit(parent), layout(layout), pictures(*document()) {
    setObjectName("editor");
    setAccessibleName(tr("Área de Trabalho"));
    setAcceptRichText(false);
    setFrameShape(QFrame::NoFrame);
    setContextMenuPolicy(Qt::NoContextMenu);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    auto colors = palette();
    colors.setColor(QPalette::Base, Qt::white);
    colors.setColor(QPalette::Text, Qt::black);
    setPalette(colors);
    resize(0, 0);
    show();
}

Text CTextBox::PlainText() const {
    Text text;
    for (const QChar c : document()->toRawText())
        text += ByteOf(c);
    return text;
}

std::vector<SurfacePicture> CTextBox::Pictures() const {
    return pictures.All();
}

int CTextBox::SelectionEnd() const {
    return textCursor().selectionEnd();
}

void CTextBox::ClearRange(int start, int end) {
    auto range = Range(start, end);
    range.removeSelectedText();
    setTextCursor(range);
}

void CTextBox::ReplaceSelection(TextView text) {
    auto cursor = textCursor();
    cursor.insertText(ToQString(text), {});
    setTextCursor(cursor);
}

std::optional<int> CTextBox::AppendPicture(const std::filesystem::path& file) {
    const QImage picture(QString::fromStdString(file.string()));
    if (picture.isNull())
        return std::nullopt;
    auto cursor = textCursor();
    cursor.movePosition(QTextCursor::End);
    const int position = cursor.position();
    pictures.Insert(cursor, picture);
    setTextCursor(cursor);
    ensureCursorVisible();
    return position;
}

void CTextBox::SetPictureIndex(int position, int index) {
    pictures.SetIndex(position, index);
}

void CTextBox::SetFontSize(int points) {
    auto changed = font();
    changed.setPointSize(std::max(points, 1));
    setFont(changed);
}

void CTextBox::SetFontName(TextView name) {
    setFont(ToQFont({Text(name), font().pointSize()}));
}

Point CTextBox::CaretPosition() const {
    if (!isVisible())
        return {};
    return FromQPoint(viewport()->mapToGlobal(cursorRect().topLeft()));
}

Rectangle CTextBox::ScreenArea() const {
    return FromQRect({viewport()->mapToGlobal(QPoint(0, 0)), viewport()->size()});
}

bool CTextBox::IsUnder(Point screen) const {
    const auto* widget = QApplication::widgetAt(ToQPoint(screen));
    return widget && (widget == this || isAncestorOf(widget));
}

QTextCursor CTextBox::Range(int start, int end) const {
    const int length = document()->characterCount() - 1;
    QTextCursor range(document());
    range.setPosition(std::clamp(start, 0, length));
    range.setPosition(std::clamp(end, 0, length), QTextCursor::KeepAnchor);
    return range;
}

bool CTextBox::ReportKeysDown(const std::vector<int>& codes, std::int32_t keyData) {
    if (!listener)
        return true;
    for (const int code : codes)
        listener->OnKeyDown(code, keyData);
    return std::none_of(codes.begin(), codes.end(), [this](int code) { return listener->IsBlocked(code); });
}

void CTextBox::ReportKeysUp(const std::vector<int>& codes, std::int32_t keyData) {
    if (listener)
        for (auto code = codes.rbegin(); code != codes.rend(); ++code)
            listener->OnKeyUp(*code, keyData);
}

void CTextBox::ReportCharacter(char c, std::int32_t keyData) {
    if (listener)
        listener->OnCharacter(c, keyData);
}

void CTextBox::keyPressEvent(QKeyEvent* event) {
    const auto keyData = KeyDataOf(*event);
    if (!ReportKeysDown(VirtualKeysOf(*event, layout), keyData))
        return;
    if (const auto c = CharacterOf(*event))
        ReportCharacter(*c, keyData);
    else if (!IsWritable(event->text()))
        return;
    QTextEdit::keyPressEvent(event);
    // The main window, which would get what writes nothing, reports keys too.
    event->accept();
    if (event->key() == Qt::Key_Space)
        EndUndoStep();
}

void CTextBox::keyReleaseEvent(QKeyEvent* event) {
    // A key that is held sends releases too, which no hand made.
    if (!event->isAutoRepeat())
        ReportKeysUp(VirtualKeysOf(*event, layout), KeyDataOf(*event));
    QTextEdit::keyReleaseEvent(event);
    event->accept();
}

/// A dead key's press never arrives: the desktop keeps it, and sends the composed letter instead.
void CTextBox::inputMethodEvent(QInputMethodEvent* event) {
    const auto text = event->commitString();
    if (!IsWritable(text))
        return;
    const auto modifiers = QApplication::keyboardModifiers();
    for (const char c : FromQString(text)) {
        if (!ReportKeysDown(VirtualKeysOf(c, modifiers, layout), 1))
            return;
        ReportCharacter(c, 1);
    }
    QTextEdit::inputMethodEvent(event);
}

bool CTextBox::ReportButton(QMouseEvent* event, bool down) {
    if (const auto message = MessageOf(event->button(), down); message && listener)
        listener->OnMouseButton(*message);
    return mouseEnabled;
}

void CTextBox::mousePressEvent(QMouseEvent* event) {
    if (!ReportButton(event, true))
        return;
    Q_EMIT clickedInto();
    QTextEdit::mousePressEvent(event);
}

void CTextBox::mouseReleaseEvent(QMouseEvent* event) {
    if (ReportButton(event, false))
        QTextEdit::mouseReleaseEvent(event);
}

void CTextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (ReportButton(event, true))
        QTextEdit::mouseDoubleClickEvent(event);
}

void CTextBox::mouseMoveEvent(QMouseEvent* event) {
    if (listener)
        listener->OnPointerMoved(FromQPoint(event->position().toPoint()));
    QTextEdit::mouseMoveEvent(event);
}

QMimeData* CTextBox::createMimeDataFromSelection() const {
    auto text = textCursor().selection().toPlainText();
    text.remove(QChar(TextPictures::kPlace));
    auto* data = new QMimeData;
    data->setText(text);
    return data;
}

bool CTextBox::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText();
}

void CTextBox::insertFromMimeData(const QMimeData* source) {
    EndUndoStep();
    // Through Windows-1252 and back: what it lacks becomes "?".
    ReplaceSelection(FromQString(source->text()));
    EndUndoStep();
    ensureCursorVisible();
}

/// A document joins what is typed in a row into one step of undoing, except where it counts as saved.
void CTextBox::EndUndoStep() {
    document()->setModified(false);
}

} // namespace ondrilo
