#pragma once

#include "app/LearningController.h"
#include "app/PredictionCycle.h"
#include "app/SessionState.h"
#include "targets/CKeyboard.h"

namespace ondrilo {

/// Writes what a prediction or pictogram key stands for into the text, and predicts anew.
class CompletionController {
  public:
    CompletionController(const CUserProfileSet& profiles, const Targets& targets, PredictionKeys& keys,
                         COnScreenKeyboard& keyboard, PredictionCycle& cycle, LearningController& learning,
                         const CKeyboard& keyboardSimulator, SessionState& state,
                         const SessionServices& services);

    /// `position` is that of the key in its list.
    void CompleteWord(int position);
    void CompleteSentence(int position);
    /// A key of one of the two pictogram lists.
    void CompleteImage(COnScreenKeyIdentifier key);
    /// Does nothing in a target that holds no pictograms.
    void WritePictogramKey(COnScreenKeyIdentifier key);

  private:
    /// Where a completion came from: what the metrics ask for.
    struct Origin {
        Completion::Source source = Completion::Source::TextList;
        int position = 0;
    };
    void WriteWord(const Text& word, const Origin& origin);
    void WriteSentence(const Text& sentence, const Origin& origin, bool byRemainder);
    void RemoveWhatPictogramReplaces(TextView description);
    [[nodiscard]] Origin OriginOf(COnScreenKeyIdentifier key) const;
    void Expect(TextView typed);
    void CountCompletion(Completion::Kind kind, const Origin& origin, std::size_t prefixLength);
    void PlayMagic();

    const CUserProfileSet& profiles;
    const Targets& targets;
    PredictionKeys& keys;
    COnScreenKeyboard& keyboard;
    PredictionCycle& cycle;
    LearningController& learning;
    const CKeyboard& keyboardSimulator;
    SessionState& state;
    SessionServices services;
};

} // namespace ondrilo
