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
    question.reset();
    position = {};
}

void AccessibleCaret::Ask() {
    asked = *std::exchange(latest, std::nullopt);
    if (asked.caret)
        AskForCharacter();
    else
        AskForOffset();
}

void AccessibleCaret::AskForOffset() {
    question =
        connection.AskNumber(asked.object, AccessibilityConnection::kText, "CaretOffset", [this](int offset) {
            if (!IsStillThere())
                return;
            asked.caret = offset;
            if (offset >= 0)
                AskForCharacter();
            else
                Tell({});
        });
}

void AccessibleCaret::AskForCharacter() {
    AskForArea(AccessibilityConnection::kText, "GetCharacterExtents", {*asked.caret, kOnScreen}, "iiii",
               [this](const std::optional<Rectangle>& character) {
                   if (character)
                       Tell({character->x, character->y});
                   else if (*asked.caret > 0)
                       AskForCharacterBefore();
                   else
                       AskForObject(std::nullopt);
               });
}

/// Behind the last character there is none for some toolkits.
void AccessibleCaret::AskForCharacterBefore() {
    AskForArea(AccessibilityConnection::kText, "GetCharacterExtents", {*asked.caret - 1, kOnScreen}, "iiii",
               [this](const std::optional<Rectangle>& character) {
                   // A line break has no width for them.
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
