#include "targets/TextContext.h"

namespace ondrilo {
namespace {

/// Where the sentence begins that `place` lies in: after the last terminator before it.
std::size_t SentenceStart(TextView text, std::size_t place) {
    const auto left = text.substr(0, place);
    return left.find_last_of(kTerminators) + 1; // npos + 1 is 0
}

/// The token `back` tokens before the one being written; what follows a separator is not yet a token.
Text TokenBefore(const Tokens& tokens, TextView text, int back) {
    const auto written = text.empty() || IsSeparator(text.back()) ? 0U : 1U;
    const auto fromEnd = static_cast<std::size_t>(back) + written;
    return fromEnd <= tokens.size() ? tokens[tokens.size() - fromEnd] : Text();
}

bool EndsInsideTag(TextView text) {
    const auto bracket = text.find_last_of("[]");
    return bracket != TextView::npos && text[bracket] == '[';
}

Text WithoutTagEnd(Text sentence) {
    const auto bracket = sentence.find_first_of("[]");
    if (bracket != Text::npos && sentence[bracket] == ']')
        sentence.erase(bracket, 1);
    return sentence;
}

} // namespace

TextContext::TextContext(Text wholeText, std::size_t insertionPoint)
    : text(std::move(wholeText)), cursor(insertionPoint) {
    if (cursor > text.size()) {
        text.clear();
        cursor = 0;
    }
}

Text TextContext::CurrentWordLeft() const {
    return Text(Left().substr(Left().find_last_of(kSeparators) + 1));
}

Text TextContext::CurrentWordRight() const {
    return Text(Right().substr(0, Right().find_first_of(kSeparators)));
}

Text TextContext::PreviousWord(int back) const {
    const auto end = SentenceStart(text, cursor);
    const auto start = end > 0 ? SentenceStart(text, end - 1) : 0;
    const auto sentences = Left().substr(start);
    return TokenBefore(Split(sentences, kSeparators, kAllTokens), sentences, back);
}

Text TextContext::CurrentSentenceLeft() const {
    return Text(Left().substr(SentenceStart(text, cursor)));
}

Text TextContext::CurrentSentenceRight() const {
    const auto terminator = Right().find_first_of(kTerminators);
    return Text(Right().substr(0, terminator == TextView::npos ? terminator : terminator + 1));
}

TextView TextContext::SentenceBefore(int back) const {
    auto end = SentenceStart(text, cursor);
    for (; end > 0; --back) {
        const auto start = SentenceStart(text, end - 1);
        if (back == 1)
            return TextView(text).substr(start, end - start);
        end = start;
    }
    return {};
}

Text TextContext::PreviousSentence(int back) const {
    return Text(SentenceBefore(back));
}

Text TextContext::LabelledSentenceLeft() const {
    return WithoutTagEnd(CurrentSentenceLeft());
}

Text TextContext::LabelledPreviousSentence(int back) const {
    const auto found = SentenceBefore(back);
    Text sentence(found);
    // The tag may have begun sentences ago: all the text up to the terminator tells.
    if (!found.empty() && EndsInsideTag({text.data(), found.data() + found.size()}))
        sentence += ']';
    return WithoutTagEnd(std::move(sentence));
}

Text TextContext::LabelledPreviousWord(int back) const {
    return TokenBefore(SplitTokens(Left(), kAllTokens), Left(), back);
}

} // namespace ondrilo
