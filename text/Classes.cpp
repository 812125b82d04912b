#include "text/Classes.h"

#include <algorithm>

namespace ondrilo {
namespace {

bool HoldsTerminator(TextView text) {
    return text.find_first_of(kTerminators) != TextView::npos;
}

} // namespace

bool IsSingleWord(TextView text) {
    return !HoldsTerminator(text) && Split(text, kSeparators, 2).size() == 1;
}

bool IsSentence(TextView text) {
    return HoldsTerminator(text) && !Split(text, kSeparators, 1).empty();
}

bool IsWordSequence(TextView text) {
    return !IsSentence(text) && Split(text, kSeparators, 2).size() > 1;
}

bool IsPictogramToken(TextView text) {
    return text.size() >= 2 && text.find('[') == 0 && text.rfind('[') == 0 &&
           text.find(']') == text.size() - 1;
}

bool IsAllPictograms(TextView text) {
    const Tokens tokens = SplitTokens(text);
    return std::all_of(tokens.begin(), tokens.end(), IsPictogramToken);
}

bool HasNoPictograms(TextView text) {
    const Tokens tokens = SplitTokens(text);
    return std::none_of(tokens.begin(), tokens.end(), IsPictogramToken);
}

LearnedKind LearnedKindOf(TextView text) {
    if (IsSentence(text))
        return LearnedKind::Sentence;
    if (!Split(text, kSeparators, 1).empty())
        return LearnedKind::Words;
    const bool onlyTerminators = !text.empty() && text.find_first_not_of(kTerminators) == TextView::npos;
    return onlyTerminators ? LearnedKind::Terminators : LearnedKind::Nothing;
}

} // namespace ondrilo
