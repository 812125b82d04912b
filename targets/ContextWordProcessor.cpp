#include "targets/ContextWordProcessor.h"

#include "text/CaseFolding.h"
#include "text/NormalForm.h"

namespace ondrilo {

Text ContextWordProcessor::GetCurrentWordLeft() const {
    return Context().CurrentWordLeft();
}

Text ContextWordProcessor::GetCurrentWordRight() const {
    return Context().CurrentWordRight();
}

Text ContextWordProcessor::GetCurrentWord() const {
    const auto context = Context();
    return context.CurrentWordLeft() + context.CurrentWordRight();
}

Text ContextWordProcessor::GetPreviousWord() const {
    return Context().PreviousWord(1);
}

Text ContextWordProcessor::GetSecondPreviousWord() const {
    return Context().PreviousWord(2);
}

Text ContextWordProcessor::GetWrittenSentence() const {
    return GetCurrentSentenceLeft();
}

Text ContextWordProcessor::GetCurrentSentenceLeft() const {
    return Context().CurrentSentenceLeft();
}

Text ContextWordProcessor::GetCurrentSentenceRight() const {
    return Context().CurrentSentenceRight();
}

Text ContextWordProcessor::GetCurrentSentence() const {
    const auto context = Context();
    return context.CurrentSentenceLeft() + context.CurrentSentenceRight();
}

Text ContextWordProcessor::GetPreviousSentence() const {
    return Context().PreviousSentence(1);
}

Text ContextWordProcessor::GetSecondPreviousSentence() const {
    return Context().PreviousSentence(2);
}

Text ContextWordProcessor::GetRemainder(TextView complete, TextView typed) const {
    return ondrilo::GetRemainder(complete, typed);
}

Text ContextWordProcessor::GetWordDisplayText(TextView word) const {
    const Text typed = GetCurrentWordLeft();
    return typed + AdaptWordCase(typed.empty() ? MakeLower(word) : GetRemainder(word, typed));
}

Text ContextWordProcessor::AdaptWordCase(TextView word) const {
    return keyboard.IsCapsLockOn() ? CKeyboard::SwapCase(word) : Text(word);
}

Text ContextWordProcessor::GetSentenceDisplayText(TextView sentence) const {
    const Text left = GetCurrentSentenceLeft();
    const Text typed = CollapseWhiteSpace(left);
    return left + AdaptSentenceCase(typed.empty() ? Text(sentence) : GetRemainder(sentence, typed));
}

Text ContextWordProcessor::AdaptSentenceCase(TextView sentence) const {
    return AdaptWordCase(sentence);
}

Text ContextWordProcessor::GetLabelledSentenceLeft() const {
    return GetCurrentSentenceLeft();
}

Text ContextWordProcessor::GetLabelledSentenceRight() const {
    return GetCurrentSentenceRight();
}

Text ContextWordProcessor::GetLabelledSentence() const {
    return GetCurrentSentence();
}

Text ContextWordProcessor::GetLabelledSentenceWritten() const {
    return GetLabelledSentenceLeft();
}

Text ContextWordProcessor::GetLabelledPreviousSentence() const {
    return GetPreviousSentence();
}

Text ContextWordProcessor::GetLabelledSecondPreviousSentence() const {
    return GetSecondPreviousSentence();
}

Text ContextWordProcessor::GetLabelledPreviousWord() const {
    return GetPreviousWord();
}

Text ContextWordProcessor::GetLabelledSecondPreviousWord() const {
    return GetSecondPreviousWord();
}

Text WithBlank(TextView text) {
    return Text(text) + ' ';
}

std::optional<Point> FirstPointOutside(Rectangle area, Rectangle rectangle) {
    const Point candidates[] = {
        {area.x, area.y}, {rectangle.x + rectangle.width, area.y}, {area.x, rectangle.y + rectangle.height}};
    for (const auto point : candidates)
        if (area.Contains(point) && !rectangle.Contains(point))
            return point;
    return std::nullopt;
}

} // namespace ondrilo
