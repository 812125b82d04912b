#include "text/NormalForm.h"

#include "text/CaseFolding.h"
#include "text/Classes.h"

namespace ondrilo {
namespace {

/// Each token as a pictogram token, the last one left open, so that it is a prefix.
Text OpenPictogramForm(TextView sentence) {
    Tokens tokens = SplitTokens(sentence);
    for (Text& token : tokens)
        if (!IsPictogramToken(token))
            token.insert(0, "[").append("]");
    Text form = Join(tokens, " ");
    form.pop_back();
    return form;
}

} // namespace

Text CollapseWhiteSpace(TextView text) {
    Text collapsed;
    collapsed.reserve(text.size());
    for (const char c : TrimLeft(text))
        if (!IsWhiteSpace(c))
            collapsed += c;
        else if (collapsed.back() != ' ')
            collapsed += ' ';
    return collapsed;
}

Text NormalizeSentence(TextView text) {
    Text normal;
    NormalizeSentence(text, normal);
    return normal;
}

void NormalizeSentence(TextView text, Text& normal) {
    const TextView rest = TrimLeft(text);
    normal.resize(rest.size());
    auto end = normal.begin();
    for (const char c : rest)
        if (!IsWhiteSpace(c))
            *end++ = MakeLower(c);
        else if (end[-1] != ' ')
            *end++ = ' ';
    normal.erase(end, normal.end());
}

Text GetRemainder(TextView complete, TextView typed) {
    const Text folded = MakeLower(complete);
    const Text start = MakeLower(typed);
    const auto common = std::mismatch(folded.begin(), folded.end(), start.begin(), start.end());
    return {common.first, folded.end()};
}

Text WithoutBrackets(TextView text) {
    Text plain(text);
    std::erase_if(plain, [](char c) { return c == '[' || c == ']'; });
    return plain;
}

Tokens WordForms(TextView currentWordLeft, TextView labelledSentenceWritten) {
    const Text word = MakeLower(currentWordLeft);
    Tokens forms{word};
    if (!word.empty() && !IsPictogramToken(word) && IsSingleWord(word))
        forms.push_back("[" + word);

    const Tokens tokens = SplitTokens(labelledSentenceWritten);
    if (tokens.empty() || !HasNoPictograms(tokens.back()))
        return forms;
    const Text sentence = NormalizeSentence(labelledSentenceWritten);
    if (!sentence.empty() && HasNoPictograms(sentence))
        forms.push_back("[" + sentence);
    return forms;
}

Tokens SentenceForms(TextView labelledSentenceWritten) {
    const Text sentence = NormalizeSentence(labelledSentenceWritten);
    if (sentence.empty())
        return {};
    if (IsAllPictograms(sentence))
        return {sentence, WithoutBrackets(sentence)};
    if (HasNoPictograms(sentence))
        return {sentence, OpenPictogramForm(sentence)};
    // A mixed sentence counts twice without its brackets: candidates of that form weigh double.
    return {sentence, WithoutBrackets(sentence), WithoutBrackets(sentence), OpenPictogramForm(sentence)};
}

} // namespace ondrilo
