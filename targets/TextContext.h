#pragma once

#include "text/Splitter.h"

namespace ondrilo {

/// Words and sentences around an insertion point: the rules that all text targets share. Each query is a pure
/// function of the text and the insertion point; an impossible insertion point makes every answer empty.
class TextContext {
  public:
    TextContext(Text text, std::size_t cursor);

    [[nodiscard]] const Text& WholeText() const { return text; }

    [[nodiscard]] Text CurrentWordLeft() const;
    [[nodiscard]] Text CurrentWordRight() const;
    /// `back` words before the current one (1 is the previous word), at most two sentences back.
    [[nodiscard]] Text PreviousWord(int back) const;

    [[nodiscard]] Text CurrentSentenceLeft() const;
    [[nodiscard]] Text CurrentSentenceRight() const;
    /// `back` sentences before the current one, with the terminator.
    [[nodiscard]] Text PreviousSentence(int back) const;

    /// The tagged forms, for a text whose pictures are told by "[...]": a sentence that begins inside a tag
    /// loses the tag's closing bracket, a previous one that ends inside a tag gets it closed.
    [[nodiscard]] Text LabelledSentenceLeft() const;
    [[nodiscard]] Text LabelledPreviousSentence(int back) const;
    /// As PreviousWord, but over the whole text to the insertion point, a tag being one word.
    [[nodiscard]] Text LabelledPreviousWord(int back) const;

  private:
    [[nodiscard]] TextView Left() const { return TextView(text).substr(0, cursor); }
    [[nodiscard]] TextView Right() const { return TextView(text).substr(cursor); }
    [[nodiscard]] TextView SentenceBefore(int back) const;

    Text text;
    std::size_t cursor;
};

} // namespace ondrilo
