#include "platform/qt/AccessibleCaret.h"

#include "platform/qt/NativePixels.h"

#include <QDBusArgument>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ondrilo {
namespace {

constexpr unsigned kOnScreen = 0; ///< how coordinates are to be counted
constexpr int kDeepest = 50;      ///< objects around one another

std::optional<Rectangle> AreaOf(const QVariantList& answer) {
    if (answer.size() == 4)
        return Rectangle{answer[0].toInt(), answer[1].toInt(), answer[2].toInt(), answer[3].toInt()};
    if (answer.size() != 1)
        return std::nullopt;
    const auto list = answer[0].value<QDBusArgument>();
    Rectangle area;
    list.beginStructure();
    list >> area.x >> area.y >> area.width >> area.height;
    return area;
}

/// Toolkits answer with zeros or absurd numbers where nothing is to be seen.
bool IsCredible(const Rectangle& area) {
    constexpr int kFarthest = 32767; ///< the server knows no farther place
    const auto isNear = [](int distance) {
        return distance >= -kFarthest && distance <= kFarthest;
    };
    return isNear(area.x) && isNear(area.y) && isNear(area.width) && isNear(area.height) && area.width >= 0 &&
           area.height > 0;
}

bool HasScaledScreen() {
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(),
                       [](const QScreen* screen) { return screen->devicePixelRatio() != 1; });
}

/// On a scaled screen some toolkits count in the pixels of the server and others in larger ones, as we do;
/// the width of the program's window tells which. Of the latter, some let each screen keep its corner, as we
/// do, and others count from the corner of the first screen.
Point ToOurPixels(Point told, int toldWidth, Rectangle nativeWindow) {
    const auto window = FromNative(nativeWindow);
    if (std::abs(toldWidth - nativeWindow.width) <= std::abs(toldWidth - window.width))
        return FromNative(told);
    if (window.Contains(told))
        return told;
    const double factor = static_cast<double>(nativeWindow.width) / window.width;
    return FromNative(Point{static_cast<int>(told.x * factor), static_cast<int>(told.y * factor)});
}

} // namespace

void AccessibleCaret::Move(const AccessibleFocus& focus) {
    latest = focus;
    if (!question)
        Ask();
}

void AccessibleCaret::Forget() {
    latest.reset();
    asked = {};
    question.reset();
    position = {};
}

void AccessibleCaret::Renew() {
    if (!question && !asked.object.path.isEmpty())
        Move(asked);
}

void AccessibleCaret::Ask() {
    asked = *std::exchange(latest, std::nullopt);
    if (asked.caret)
        AskForLength();
    else
        AskForOffset();
}

void AccessibleCaret::AskForOffset() {
    question =
        connection.AskNumber(asked.object, AccessibilityConnection::kText, "CaretOffset", [this](int offset) {
            if (!IsStillThere())
                return;
            if (offset < 0)
                return Tell({});
            asked.caret = offset;
            AskForLength();
        });
}

/// There is no character behind the last one. Some toolkits tell its place all the same, others zeros, and
/// complain.
void AccessibleCaret::AskForLength() {
    question = connection.AskNumber(asked.object, AccessibilityConnection::kText, "CharacterCount",
                                    [this](int length) {
                                        if (!IsStillThere())
                                            return;
                                        if (*asked.caret < length)
                                            AskForCharacter();
                                        else
                                            AskForCharacterBefore();
                                    });
}

void AccessibleCaret::AskForCharacter() {
    AskForArea(asked.object, AccessibilityConnection::kText, "GetCharacterExtents", {*asked.caret, kOnScreen},
               "iiii", [this](const std::optional<Rectangle>& character) {
                   if (character)
                       Tell({character->x, character->y});
                   else
                       AskForCharacterBefore();
               });
}

void AccessibleCaret::AskForCharacterBefore() {
    if (*asked.caret <= 0)
        return AskForObject(std::nullopt);
    AskForArea(asked.object, AccessibilityConnection::kText, "GetCharacterExtents",
               {*asked.caret - 1, kOnScreen}, "iiii", [this](const std::optional<Rectangle>& character) {
                   // A line break has no width.
                   if (character && character->width > 0)
                       Tell({character->x + character->width, character->y});
                   else
                       AskForObject(character);
               });
}

void AccessibleCaret::AskForObject(const std::optional<Rectangle>& lineAbove) {
    AskForArea(asked.object, AccessibilityConnection::kComponent, "GetExtents", {kOnScreen}, "(iiii)",
               [this, lineAbove](const std::optional<Rectangle>& object) {
                   if (!object)
                       Tell({});
                   else
                       Tell({object->x, lineAbove ? lineAbove->y + lineAbove->height : object->y});
               });
}

void AccessibleCaret::AskForArea(const AccessibleObject& object, const char* interface, const char* method,
                                 const QVariantList& arguments, const char* form, Found found) {
    question = connection.Ask(object, interface, method, arguments, form,
                              [this, found = std::move(found)](const QVariantList& answer) {
                                  const auto area = AreaOf(answer);
                                  if (IsStillThere())
                                      found(area && IsCredible(*area) ? area : std::nullopt);
                              });
}

bool AccessibleCaret::IsStillThere() {
    question.reset();
    if (latest)
        Ask();
    return !question;
}

void AccessibleCaret::Tell(Point told) {
    if (told == Point{} || !HasScaledScreen())
        position = told;
    else if (known.object == asked.object)
        AskForWindowArea(told);
    else
        AskForWindowAround(asked.object, told, 0);
}

void AccessibleCaret::AskForWindowAround(const AccessibleObject& object, Point told, int depth) {
    question = connection.AskParent(object, [this, object, told, depth](const AccessibleObject& parent) {
        if (!IsStillThere())
            return;
        if (!parent.path.isEmpty() && depth < kDeepest)
            return AskForWindowAround(parent, told, depth + 1);
        known = {asked.object, object};
        AskForWindowArea(told);
    });
}

void AccessibleCaret::AskForWindowArea(Point told) {
    AskForArea(known.window, AccessibilityConnection::kComponent, "GetExtents", {kOnScreen}, "(iiii)",
               [this, told](const std::optional<Rectangle>& window) {
                   const auto native = clientArea();
                   if (window && native.width > 0)
                       position = ToOurPixels(told, window->width, native);
               });
}

} // namespace ondrilo
