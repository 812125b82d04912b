#include "app/LearningController.h"

#include "text/CaseFolding.h"
#include "text/Classes.h"

namespace ondrilo {
namespace {

/// Stands for the start of a sentence, or of a text, in the pairs.
constexpr TextView kStart = "___";

} // namespace

LearningController::LearningController(CUserProfileSet& profiles, const Targets& targets)
    : profiles(profiles), targets(targets) {
}

bool LearningController::IsOn() const {
    return targets.Current() && profiles.Active().properties.IsOn(option::ADAPTACAO_UTILIZADOR);
}

CDictionary& LearningController::Dictionary() {
    return profiles.Active().dictionary;
}

void LearningController::LearnWord() {
    if (!IsOn())
        return;
    const auto word = MakeLower(targets.Current()->GetLabelledPreviousWord());
    if (word.empty())
        return;
    auto& dictionary = Dictionary();
    dictionary.AddUserWord(word);
    const auto before = MakeLower(targets.Current()->GetLabelledSecondPreviousWord());
    if (!before.empty()) {
        dictionary.AddUserWordPair(before, word);
    } else {
        if (!previousLearnedWord.empty())
            dictionary.AddUserWordPair(previousLearnedWord, word);
        dictionary.AddUserWord(kStart);
        dictionary.AddUserWordPair(kStart, word);
    }
    previousLearnedWord = word;
}

void LearningController::LearnSentence() {
    if (!IsOn())
        return;
    const auto sentence = targets.Current()->GetLabelledPreviousSentence();
    if (sentence.empty())
        return;
    auto& dictionary = Dictionary();
    dictionary.AddUserSentence(sentence);
    const auto before = targets.Current()->GetLabelledSecondPreviousSentence();
    if (!before.empty()) {
        dictionary.AddUserSentencePair(before, sentence);
    } else {
        if (!previousLearnedSentence.empty())
            dictionary.AddUserSentencePair(previousLearnedSentence, sentence);
        dictionary.AddUserSentence(kStart);
        dictionary.AddUserSentencePair(kStart, sentence);
    }
    previousLearnedSentence = sentence;
}

void LearningController::LearnCurrentSentence() {
    if (!IsOn())
        return;
    const Text labelled = targets.Current()->GetLabelledSentence();
    const auto sentence = Trim(labelled);
    if (sentence.empty())
        return;
    auto& dictionary = Dictionary();
    dictionary.AddUserSentence(sentence);
    const auto before = targets.Current()->GetLabelledPreviousSentence();
    if (!before.empty()) {
        dictionary.AddUserSentencePair(before, sentence);
        return;
    }
    dictionary.AddUserSentence(kStart);
    dictionary.AddUserSentencePair(kStart, sentence);
}

void LearningController::LearnFromKeyOutput(TextView text) {
    const auto kind = LearnedKindOf(text);
    if (kind == LearnedKind::Sentence || kind == LearnedKind::Terminators)
        LearnSentence();
    if (kind != LearnedKind::Nothing)
        LearnWord();
}

} // namespace ondrilo
