#pragma once

#include "text/Splitter.h"

namespace ondrilo {

/// Runs of white space become one blank, leading ones go; a run at the end leaves one blank.
[[nodiscard]] Text CollapseWhiteSpace(TextView text);
/// CollapseWhiteSpace, then lower case: the form in which sentences are stored.
[[nodiscard]] Text NormalizeSentence(TextView text);
/// The same into storage that the caller keeps, for where nothing may be allocated.
void NormalizeSentence(TextView text, Text& normal);
/// What `complete` adds to `typed`: both folded, the common prefix taken off; the result is lower case.
[[nodiscard]] Text GetRemainder(TextView complete, TextView typed);
/// `text` without any "[" and "]".
[[nodiscard]] Text WithoutBrackets(TextView text);

/// The prefix forms for which a prediction cycle asks the word predictor: the word being written, left of
/// the insertion point, folded; its pictogram form; and the pictogram form of the whole written sentence.
[[nodiscard]] Tokens WordForms(TextView currentWordLeft, TextView labelledSentenceWritten);
/// The same for the sentence predictor; `labelledSentenceWritten` as the target gives it.
[[nodiscard]] Tokens SentenceForms(TextView labelledSentenceWritten);

} // namespace ondrilo
