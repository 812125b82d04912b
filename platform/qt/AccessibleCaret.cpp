#include "platform/qt/AccessibleCaret.h"

#include "platform/qt/NativePixels.h"

#include <QDBusArgument>

#include <utility>

namespace ondrilo {
namespace {

constexpr unsigned kOnScreen = 0; ///< how coordinates are to be counted

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
    AskForArea(AccessibilityConnection::kText, "GetCharacterExtents", {*asked.caret, kOnScreen}, "iiii",
               [this](const std::optional<Rectangle>& character) {
                   if (character)
                       Tell({character->x, character->y});
                   else
                       AskForCharacterBefore();
               });
}

void AccessibleCaret::AskForCharacterBefore() {
    if (*asked.caret <= 0)
        return AskForObject(std::nullopt);
    AskForArea(AccessibilityConnection::kText, "GetCharacterExtents", {*asked.caret - 1, kOnScreen}, "iiii",
               [this](const std::optional<Rectangle>& character) {
                   // A line break has no width.
                   if (character && character->width > 0)
                       Tell({character->x + character->width, character->y});
                   else
                       AskForObject(character);
               });
}

void AccessibleCaret::AskForObject(const std::optional<Rectangle>& lineAbove) {
    AskForArea(AccessibilityConnection::kComponent, "GetExtents", {kOnScreen}, "(iiii)",
               [this, lineAbove](const std::optional<Rectangle>& object) {
                   if (!object)
                       Tell({});
                   else
                       Tell({object->x, lineAbove ? lineAbove->y + lineAbove->height : object->y});
               });
}

void AccessibleCaret::AskForArea(const char* interface, const char* method, const QVariantList& arguments,
                                 const char* form, Found found) {
    question = connection.Ask(asked.object, interface, method, arguments, form,
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

void AccessibleCaret::Tell(Point native) {
    position = native == Point{} ? native : FromNative(native);
}

} // namespace ondrilo
