#include "targets/CGenericWordProcessor.h"

#include "text/NormalForm.h"

#include <algorithm>
#include <utility>

namespace ondrilo {
namespace {

constexpr char kBackspace = 8;

/// Characters of Control with a letter and their like: they write nothing, but may do anything to the text.
bool IsCommand(char c) {
    constexpr char kDelete = 127;
    const bool writes = static_cast<unsigned char>(c) >= ' ' || c == '\t' || c == '\n' || c == '\r';
    return (!writes && c != kBackspace) || c == kDelete;
}

/// The characters by which a person often leaves the line or the field: some programs write them, others send
/// what was written or go to the next field.
bool MayLeave(char c) {
    return c == '\t' || c == '\n' || c == '\r';
}

} // namespace

CGenericWordProcessor::CGenericWordProcessor(WindowId targetWindow, CKeyboard& keyboard,
                                             Surroundings surroundings)
    : ContextWordProcessor(keyboard), targetWindow(targetWindow), hook(surroundings.hook),
      accessible(surroundings.accessible), desktop(surroundings.desktop), queue(surroundings.queue),
      contextRead(std::move(surroundings.contextRead)), unitEnds(queue), activeWindow(targetWindow) {
}

bool CGenericWordProcessor::Create() {
    const auto process = desktop.ProcessOf(targetWindow);
    if (process == 0 ||
        !hook.InitializeHook(targetWindow, [this](const MessageEvent& event) { OnEvent(event); }))
        return false;
    focusHook = desktop.OnFocusChange([this] { OnFocusChange(); });
    accessible.Follow(process);
    accessible.OnCaretMoved([this](bool isElsewhere) { OnCaretMoved(isElsewhere); });
    AskForText();
    return true;
}

void CGenericWordProcessor::Destroy() {
    hook.TerminateHook();
    focusHook.reset();
    accessible.Follow(0);
}

// --- writing and deleting ---

/// Nothing is deleted first: what was typed stays, also where the two share nothing.
void CGenericWordProcessor::Complete(TextView whole, TextView typed) {
    keyboard.TypeText(WithBlank(typed.empty() ? Text(whole) : GetRemainder(whole, typed)));
}

void CGenericWordProcessor::WriteWord(TextView word) {
    Complete(word, GetCurrentWordLeft());
}

void CGenericWordProcessor::WriteSentence(TextView sentence) {
    Complete(sentence, CollapseWhiteSpace(GetCurrentSentenceLeft()));
}

void CGenericWordProcessor::DeleteCurrentWordLeft() {
    keyboard.Backspace(static_cast<int>(GetCurrentWordLeft().size()));
}

void CGenericWordProcessor::DeleteCurrentSentenceLeft() {
    keyboard.Backspace(static_cast<int>(GetCurrentSentenceLeft().size()));
}

// --- what is done in the other program ---

void CGenericWordProcessor::OnEvent(const MessageEvent& event) {
    switch (event.message) {
    case Message::UM_KEY_DOWN:
        KeyDown(event.first, event.second);
        break;
    case Message::UM_CHAR:
        return Character(static_cast<char>(event.first), event.second);
    case Message::UM_LEFT_DOWN:
        if (!mouseTracked)
            desktop.Activate(targetWindow);
        Button();
        break;
    case Message::UM_RIGHT_DOWN:
    case Message::UM_MIDDLE_DOWN:
        Button();
        break;
    case Message::UM_POINTER_MOVED:
        if (std::exchange(lastMousePosition, event.second) == event.second)
            return;
        break;
    default:
        break;
    }
    queue.Post(event.message, event.first, event.second);
}

/// Another window of the program is another text.
void CGenericWordProcessor::OnFocusChange() {
    const auto window = desktop.ForegroundWindow();
    if (window != 0 && std::exchange(activeWindow, window) != window)
        ResetShadow();
}

/// Keys are followed. A click may have its effect only when the text has been read.
void CGenericWordProcessor::OnCaretMoved(bool isElsewhere) {
    if (isElsewhere || !hasTyped)
        AskForText();
}

void CGenericWordProcessor::KeyDown(int code, std::int32_t keyData) {
    hasTyped = true;
    const bool isByWords = Tells(keyData, kKeyWithControl);
    if (accessibleRefresh)
        AskForText();
    switch (code) {
    case vk::Backspace:
        return isByWords ? ResetShadow() : Erase(cursor - 1);
    case vk::Delete:
        return isByWords ? ResetShadow() : Erase(cursor);
    case vk::Left:
    case vk::Right:
        // With Shift they select what the next letter replaces.
        if (isByWords || Tells(keyData, kKeyWithShift))
            ResetShadow();
        else if (code == vk::Left)
            cursor -= cursor > 0 ? 1 : 0;
        else
            cursor += cursor < text.size() ? 1 : 0;
        return;
    case vk::Up:
    case vk::Down:
        return ResetShadow();
    case vk::PageUp:
    case vk::PageDown:
    case vk::End:
    case vk::Home:
        // A switch or another key with a special role moves nothing.
        if (!keyboard.keySet.IsReserved(code))
            ResetShadow();
        return;
    default:
        return;
    }
}

void CGenericWordProcessor::Character(char c, std::int32_t keyData) {
    if (IsCommand(c) || IsPassword())
        ResetShadow();
    else if (c != kBackspace)
        Insert(c);
    unitEnds.PostCharacter(c, keyData);
}

void CGenericWordProcessor::Insert(char c) {
    text.insert(cursor++, 1, c);
    if (accessibleRefresh || MayLeave(c))
        AskForText();
}

void CGenericWordProcessor::Button() {
    if (mouseTracked)
        ResetShadow();
}

void CGenericWordProcessor::Erase(std::size_t place) {
    if (place >= text.size()) // nothing left of the first place wraps round to here
        return;
    text.erase(place, 1);
    cursor = std::min(cursor, place);
}

void CGenericWordProcessor::ResetShadow() {
    text.clear();
    cursor = 0;
    AskForText();
}

/// Each key that is pressed meanwhile asks anew, so that the answer holds what it wrote.
void CGenericWordProcessor::AskForText() {
    accessibleRefresh = true;
    accessible.ReadParagraph([this](const AccessibleText::Paragraph& paragraph) {
        accessibleRefresh = hasTyped = false;
        text = paragraph.text;
        cursor = std::min(paragraph.cursor, text.size());
        contextRead();
    });
}

// --- keys, mouse and window of the other program ---

void CGenericWordProcessor::BlockKeys(int first, int last) {
    for (int code = first; code <= last; ++code)
        hook.AddSpecialKey(code);
}

void CGenericWordProcessor::UnblockKeys(int first, int last) {
    for (int code = first; code <= last; ++code)
        hook.DeleteSpecialKey(code);
}

void CGenericWordProcessor::DisableMouse() {
    hook.AddMouseButtons();
    mouseTracked = false;
}

void CGenericWordProcessor::EnableMouse() {
    hook.DeleteMouseButtons();
    mouseTracked = true;
}

Point CGenericWordProcessor::GetCaretPosition() const {
    return accessible.CaretPosition();
}

bool CGenericWordProcessor::IsPointerOverTarget() const {
    return desktop.IsUnder(targetWindow, desktop.PointerPosition());
}

void CGenericWordProcessor::MovePointerOutOf(Rectangle rectangle) {
    if (const auto point = FirstPointOutside(desktop.ClientArea(targetWindow), rectangle))
        desktop.MovePointer(*point);
}

bool CGenericWordProcessor::IsPassword() const {
    return accessible.IsPassword();
}

} // namespace ondrilo
