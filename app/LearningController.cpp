#include "app/LearningController.h"

#include "text/CaseFolding.h"
#include "text/Classes.h"

namespace ondrilo {
namespace {

/// Stands for the start of a sentence, or of a text, in the pairs.
constexpr TextView kStart = "___";

using Kind = Lesson::Kind;

/// An entry and its pair with the one before. Without one before there is a break: then the pairs are with
/// `last`, which stood before the break, and with the start.
Lessons LessonsOf(Kind entry, Kind pair, const Text& text, const Text& before, const Text& last) {
    Lessons lessons{{entry, text}};
    if (!before.empty()) {
        lessons.push_back({pair, before, text});
        return lessons;
    }
    if (!last.empty())
        lessons.push_back({pair, last, text});
    lessons.push_back({entry, Text(kStart)});
    lessons.push_back({pair, Text(kStart), text});
    return lessons;
}

} // namespace

LearningController::LearningController(CUserProfileSet& profiles, const Targets& targets)
    : profiles(profiles), targets(targets) {
}

bool LearningController::IsOn() const {
    return targets.Current() && !targets.IsPassword() &&
           profiles.Active().properties.IsOn(option::ADAPTACAO_UTILIZADOR);
}

void LearningController::LearnWord() {
    if (!IsOn())
        return;
    const auto word = MakeLower(targets.Current()->GetLabelledPreviousWord());
    if (word.empty())
        return;
    const auto before = MakeLower(targets.Current()->GetLabelledSecondPreviousWord());
    profiles.Learn(LessonsOf(Kind::Word, Kind::WordPair, word, before, previousLearnedWord));
    previousLearnedWord = word;
}

void LearningController::LearnSentence() {
    if (!IsOn())
        return;
    const auto sentence = targets.Current()->GetLabelledPreviousSentence();
    if (sentence.empty())
        return;
    const auto before = targets.Current()->GetLabelledSecondPreviousSentence();
    profiles.Learn(LessonsOf(Kind::Sentence, Kind::SentencePair, sentence, before, previousLearnedSentence));
    previousLearnedSentence = sentence;
}

void LearningController::LearnCurrentSentence() {
    if (!IsOn())
        return;
    const Text labelled = targets.Current()->GetLabelledSentence();
    const Text sentence(Trim(labelled));
    if (sentence.empty())
        return;
    const auto before = targets.Current()->GetLabelledPreviousSentence();
    profiles.Learn(LessonsOf(Kind::Sentence, Kind::SentencePair, sentence, before, {}));
}

void LearningController::LearnFromKeyOutput(TextView text) {
    const auto kind = LearnedKindOf(text);
    if (kind == LearnedKind::Sentence || kind == LearnedKind::Terminators)
        LearnSentence();
    if (kind != LearnedKind::Nothing)
        LearnWord();
}

} // namespace ondrilo
