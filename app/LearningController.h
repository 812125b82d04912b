#pragma once

#include "app/Targets.h"
#include "profiles/store/CUserProfileSet.h"
#include "text/Text.h"

namespace ondrilo {

/// Learns from what the person writes, word by word and sentence by sentence, into the active profile's
/// dictionary.
class LearningController {
  public:
    LearningController(CUserProfileSet& profiles, const Targets& targets);

    /// A word has just ended.
    void LearnWord();
    /// A sentence has just ended.
    void LearnSentence();
    /// The sentence around the insertion point, ended or not; on the person's command only.
    void LearnCurrentSentence();
    /// A key wrote `text` at once.
    void LearnFromKeyOutput(TextView text);

  private:
    [[nodiscard]] bool IsOn() const;

    CUserProfileSet& profiles;
    const Targets& targets;
    /// Across a break (a cleared text, another target) they link the first entry to the last one before.
    Text previousLearnedWord;
    Text previousLearnedSentence;
};

} // namespace ondrilo
