#pragma once

#include "targets/CKeyboard.h"
#include "targets/CWordProcessor.h"
#include "targets/TextContext.h"

namespace ondrilo {

/// Answers the queries of a target from the text around its insertion point, and tells how predictions read
/// under Caps Lock. The queries called Labelled tell the plain text too; a target with pictures replaces
/// them.
class ContextWordProcessor : public CWordProcessor {
  public:
    [[nodiscard]] Text GetCurrentWordLeft() const override;
    [[nodiscard]] Text GetCurrentWordRight() const override;
    [[nodiscard]] Text GetCurrentWord() const override;
    [[nodiscard]] Text GetPreviousWord() const override;
    [[nodiscard]] Text GetSecondPreviousWord() const override;
    [[nodiscard]] Text GetWrittenSentence() const override;
    [[nodiscard]] Text GetCurrentSentenceLeft() const override;
    [[nodiscard]] Text GetCurrentSentenceRight() const override;
    [[nodiscard]] Text GetCurrentSentence() const override;
    [[nodiscard]] Text GetPreviousSentence() const override;
    [[nodiscard]] Text GetSecondPreviousSentence() const override;
    [[nodiscard]] Text GetRemainder(TextView complete, TextView typed) const override;
    [[nodiscard]] Text GetWordDisplayText(TextView word) const override;
    [[nodiscard]] Text AdaptWordCase(TextView word) const override;
    [[nodiscard]] Text GetSentenceDisplayText(TextView sentence) const override;
    [[nodiscard]] Text AdaptSentenceCase(TextView sentence) const override;
    [[nodiscard]] Text GetLabelledSentenceLeft() const override;
    [[nodiscard]] Text GetLabelledSentenceRight() const override;
    [[nodiscard]] Text GetLabelledSentence() const override;
    [[nodiscard]] Text GetLabelledSentenceWritten() const override;
    [[nodiscard]] Text GetLabelledPreviousSentence() const override;
    [[nodiscard]] Text GetLabelledSecondPreviousSentence() const override;
    [[nodiscard]] Text GetLabelledPreviousWord() const override;
    [[nodiscard]] Text GetLabelledSecondPreviousWord() const override;

  protected:
    explicit ContextWordProcessor(CKeyboard& keyboard) : keyboard(keyboard) {}
    /// The text around the insertion point, pictures as their plain text.
    [[nodiscard]] virtual TextContext Context() const = 0;

    CKeyboard& keyboard;
};

[[nodiscard]] Text WithBlank(TextView text);

/// The first point of `area` outside `rectangle`, line by line from the top left.
[[nodiscard]] std::optional<Point> FirstPointOutside(Rectangle area, Rectangle rectangle);

} // namespace ondrilo
