#include "targets/CInternalWordProcessor.h"

#include "text/CaseFolding.h"
#include "text/NormalForm.h"
#include "text/Splitter.h"

#include <algorithm>

namespace ondrilo {
namespace {

constexpr TextView kLineBreak = "\r\n";

bool BeginsWith(TextView text, TextView start) {
    return MakeLower(text).starts_with(MakeLower(start));
}

} // namespace

CInternalWordProcessor::CInternalWordProcessor(std::unique_ptr<TextSurface> box, CKeyboard& sessionKeyboard,
                                               Desktop& theDesktop, MessageQueue& messageQueue)
    : ContextWordProcessor(sessionKeyboard), textBox(std::move(box)), desktop(theDesktop),
      queue(messageQueue), unitEnds(messageQueue) {
}

CInternalWordProcessor::~CInternalWordProcessor() {
    textBox->SetListener(nullptr);
}

bool CInternalWordProcessor::Create() {
    blockedKeys.Clear();
    imageLabels.clear();
    imageTags.clear();
    textBox->SetMouseEnabled(true);
    textBox->SetListener(this);
    return true;
}

void CInternalWordProcessor::Destroy() {
    textBox->SetListener(nullptr);
    imageLabels.clear();
    imageTags.clear();
}

TextContext CInternalWordProcessor::Context() const {
    return SurfaceText(*textBox, imageLabels).Context();
}

TextContext CInternalWordProcessor::Tagged() const {
    return SurfaceText(*textBox, imageTags).Context();
}

// --- words and sentences around the insertion point, with tags ---

Text CInternalWordProcessor::GetLabelledSentenceLeft() const {
    return Tagged().LabelledSentenceLeft();
}

Text CInternalWordProcessor::GetLabelledSentenceRight() const {
    return Tagged().CurrentSentenceRight();
}

Text CInternalWordProcessor::GetLabelledSentence() const {
    const auto context = Tagged();
    return context.LabelledSentenceLeft() + context.CurrentSentenceRight();
}

Text CInternalWordProcessor::GetLabelledPreviousSentence() const {
    return Tagged().LabelledPreviousSentence(1);
}

Text CInternalWordProcessor::GetLabelledSecondPreviousSentence() const {
    return Tagged().LabelledPreviousSentence(2);
}

Text CInternalWordProcessor::GetLabelledPreviousWord() const {
    return Tagged().LabelledPreviousWord(1);
}

Text CInternalWordProcessor::GetLabelledSecondPreviousWord() const {
    return Tagged().LabelledPreviousWord(2);
}

Text CInternalWordProcessor::GetTextWithLabels() const {
    return SurfaceText(*textBox, imageLabels).WholeText();
}

Text CInternalWordProcessor::GetTextWithTags() const {
    return SurfaceText(*textBox, imageTags).WholeText();
}

bool CInternalWordProcessor::IsInsideWord() const {
    const Text text = textBox->PlainText();
    const auto cursor = static_cast<std::size_t>(textBox->SelectionEnd());
    auto isLetter = [&text](std::size_t position) {
        return position < text.size() && !IsSeparator(text[position]);
    };
    return isLetter(cursor) || (cursor > 0 && isLetter(cursor - 1));
}

// --- writing and deleting ---

void CInternalWordProcessor::Type(TextView text) {
    textBox->TakeFocus(); // the keys go wherever the focus is
    keyboard.TypeText(text);
}

/// At the end of what is selected, which typing would replace: the rest of a word without its beginning.
void CInternalWordProcessor::TypeRest(TextView text) {
    const int cursor = textBox->SelectionEnd();
    textBox->ClearRange(cursor, cursor);
    Type(text);
}

void CInternalWordProcessor::WriteWord(TextView word) {
    const Text typed = GetCurrentWordLeft();
    if (BeginsWith(word, typed) && !typed.empty())
        return TypeRest(WithBlank(GetRemainder(word, typed)));
    DeleteCurrentWordLeft();
    Type(WithBlank(word));
}

void CInternalWordProcessor::WriteSentence(TextView sentence) {
    const Text left = GetCurrentSentenceLeft();
    const Text typed = CollapseWhiteSpace(left);
    if (typed.empty())
        return Type(WithBlank(sentence));
    if (BeginsWith(sentence, typed))
        return TypeRest(WithBlank(GetRemainder(sentence, typed)));
    DeleteCurrentSentenceLeft();
    // The blank that the deletion keeps may be the line break; otherwise the paragraph would vanish.
    auto hasLineBreak = [](TextView text) {
        return text.find(kLineBreak) != TextView::npos;
    };
    if (hasLineBreak(left) && !hasLineBreak(GetCurrentSentenceLeft()))
        textBox->ReplaceSelection("\n");
    Type(WithBlank(sentence));
}

void CInternalWordProcessor::DeleteCurrentWordLeft() {
    const int cursor = textBox->SelectionEnd();
    ClearRange(cursor - static_cast<int>(GetCurrentWordLeft().size()), cursor);
}

int CInternalWordProcessor::SentenceStart(int end) const {
    Text marks = textBox->PlainText();
    for (const auto& picture : textBox->Pictures())
        if (LabelAt(imageLabels, picture.index).find_first_of(kTerminators) != TextView::npos)
            marks[static_cast<std::size_t>(picture.position)] = kTerminators.front();
    const auto left = TextView(marks).substr(0, static_cast<std::size_t>(end));
    return static_cast<int>(left.find_last_of(kTerminators) + 1);
}

void CInternalWordProcessor::DeleteCurrentSentenceLeft() {
    const int cursor = textBox->SelectionEnd();
    // A terminator right of the insertion point ends the sentence already: nothing is deleted then.
    int start = SentenceStart(cursor + 1);
    if (start >= cursor)
        return;
    const auto pictures = textBox->Pictures();
    const bool atPicture = std::any_of(pictures.begin(), pictures.end(),
                                       [start](const auto& picture) { return picture.position == start; });
    if (!atPicture && IsWhiteSpace(textBox->PlainText()[static_cast<std::size_t>(start)]))
        ++start;
    ClearRange(start, cursor);
}

void CInternalWordProcessor::DeleteCurrentWord() {
    DeleteRight(GetCurrentWordRight().size());
    DeleteCurrentWordLeft();
}

void CInternalWordProcessor::DeleteCurrentSentence() {
    DeleteRight(GetCurrentSentenceRight().size());
    DeleteCurrentSentenceLeft();
}

void CInternalWordProcessor::DeleteRight(std::size_t length) {
    ClearRange(textBox->SelectionEnd(), SurfaceText(*textBox, imageLabels).PositionRight(length));
}

void CInternalWordProcessor::ClearRange(int start, int end) {
    if (start < end)
        textBox->ClearRange(start, end);
}

void CInternalWordProcessor::ClearAll() {
    ClearRange(0, static_cast<int>(textBox->PlainText().size()));
}

// --- pictures ---

std::optional<int> CInternalWordProcessor::InsertImage(const std::filesystem::path& path) {
    return textBox->AppendPicture(path);
}

void CInternalWordProcessor::SetImageLabels(int position, TextView label, TextView tag) {
    textBox->SetPictureIndex(position, static_cast<int>(imageLabels.size()));
    imageLabels.emplace_back(label);
    imageTags.emplace_back(tag);
}

std::optional<SurfacePicture> CInternalWordProcessor::PictureAtCursor() const {
    const int cursor = textBox->SelectionEnd();
    std::optional<SurfacePicture> found;
    for (const auto& picture : textBox->Pictures())
        if (picture.position == cursor || picture.position == cursor - 1)
            found = picture; // of two, the one at the insertion point
    return found;
}

std::optional<SurfacePicture> CInternalWordProcessor::PictureBeforeCursor() const {
    if (const auto picture = PictureAtCursor())
        return picture;
    const auto end = static_cast<std::size_t>(textBox->SelectionEnd());
    const Text text = textBox->PlainText().substr(0, end);
    // A picture reads as a blank, so what stands after the last letter can only be separators and pictures.
    const auto start = static_cast<int>(text.find_last_not_of(kSeparators) + 1);
    std::optional<SurfacePicture> nearest;
    for (const auto& picture : textBox->Pictures())
        if (picture.position >= start && picture.position < static_cast<int>(end))
            nearest = picture;
    return nearest;
}

bool CInternalWordProcessor::IsAtImage() const {
    return PictureAtCursor().has_value();
}

bool CInternalWordProcessor::IsAfterImage() const {
    return PictureBeforeCursor().has_value();
}

Text CInternalWordProcessor::GetImageLabelAtCursor() const {
    const auto picture = PictureAtCursor();
    return picture ? Text(LabelAt(imageLabels, picture->index)) : Text();
}

Text CInternalWordProcessor::GetLastImageLabel() const {
    const auto picture = PictureBeforeCursor();
    return picture ? Text(LabelAt(imageLabels, picture->index)) : Text();
}

std::vector<Text> CInternalWordProcessor::GetSentenceImageLabels() const {
    const int cursor = textBox->SelectionEnd();
    const int start = SentenceStart(cursor);
    std::vector<Text> labels;
    for (const auto& picture : textBox->Pictures())
        if (picture.position >= start && picture.position < cursor)
            labels.emplace_back(LabelAt(imageLabels, picture.index));
    return labels;
}

// --- the box on the screen ---

WindowId CInternalWordProcessor::GetTargetWindow() const {
    return textBox->Window();
}

Point CInternalWordProcessor::GetCaretPosition() const {
    return textBox->CaretPosition();
}

bool CInternalWordProcessor::IsPointerOverTarget() const {
    return textBox->IsUnder(desktop.PointerPosition());
}

void CInternalWordProcessor::MovePointerOutOf(Rectangle rectangle) {
    if (const auto point = FirstPointOutside(textBox->ScreenArea(), rectangle))
        desktop.MovePointer(*point);
}

void CInternalWordProcessor::SetWidth(int pixels) {
    textBox->SetWidth(pixels);
}

void CInternalWordProcessor::SetHeight(int pixels) {
    textBox->SetHeight(pixels);
}

int CInternalWordProcessor::GetWidth() const {
    return textBox->GetSize().width;
}

int CInternalWordProcessor::GetHeight() const {
    return textBox->GetSize().height;
}

void CInternalWordProcessor::SetFontSize(int points) {
    textBox->SetFontSize(points);
}

void CInternalWordProcessor::SetFontName(TextView name) {
    textBox->SetFontName(name);
}

void CInternalWordProcessor::Move(int x, int y) {
    textBox->Move({x, y});
}

// --- what the person does in the box ---

void CInternalWordProcessor::BlockKeys(int first, int last) {
    blockedKeys.Add(first, last);
}

void CInternalWordProcessor::UnblockKeys(int first, int last) {
    blockedKeys.Remove(first, last);
}

void CInternalWordProcessor::DisableMouse() {
    textBox->SetMouseEnabled(false);
}

void CInternalWordProcessor::EnableMouse() {
    textBox->SetMouseEnabled(true);
}

bool CInternalWordProcessor::IsBlocked(int code) const {
    return blockedKeys.Contains(code);
}

void CInternalWordProcessor::OnKeyDown(int code, std::int32_t keyData) {
    queue.Post(Message::UM_KEY_DOWN, code, keyData);
}

void CInternalWordProcessor::OnKeyUp(int code, std::int32_t keyData) {
    queue.Post(Message::UM_KEY_UP, code, keyData);
}

void CInternalWordProcessor::OnCharacter(char character, std::int32_t keyData) {
    unitEnds.PostCharacter(character, keyData);
}

void CInternalWordProcessor::OnMouseButton(Message button) {
    queue.Post(button);
}

void CInternalWordProcessor::OnPointerMoved(Point position) {
    // It tells that the pointer moved, no more: eight bits of each coordinate are enough for that.
    const std::int32_t packed = (position.x & 0xFF) | (position.y & 0xFF) << 16;
    if (std::exchange(lastMousePosition, packed) != packed)
        queue.Post(Message::UM_POINTER_MOVED, 0, packed);
}

} // namespace ondrilo
