#pragma once

#include "app/LearningController.h"
#include "app/SessionServices.h"

namespace ondrilo {

/// All that the session speaks: keys, previews, and what was written.
class SpeechController {
  public:
    SpeechController(const CUserProfileSet& profiles, const Targets& targets, LearningController& learning,
                     const SessionServices& services);

    /// The only way in which anything is spoken. Gives back the text, or nothing if the profile has no voice
    /// or a password is being written.
    Text SpeakText(TextView text);
    /// The same in the voice of scanning, also for a password: who scans by ear could not write one else.
    void SpeakCue(TextView text);

    /// Word or pictogram, by what the insertion point follows.
    struct Spoken {
        bool isImage = false;
        Text text;
    };
    Spoken SpeakWordOrImage();
    Text SpeakCurrentWord();
    Text SpeakCurrentImage();
    /// Both also learn the current sentence, before the speech starts.
    Text SpeakCurrentSentence();
    Text SpeakAll();
    void SpeakEndedWord();
    void SpeakEndedSentence();

  private:
    [[nodiscard]] bool HasVoice() const;
    [[nodiscard]] CWordProcessor* Target() const { return targets.Current(); }
    /// What was spoken; nothing, if there was nothing to speak or no voice.
    void Count(Metric kind, TextView spoken, bool withSentences);

    const CUserProfileSet& profiles;
    const Targets& targets;
    LearningController& learning;
    SessionServices services;
};

} // namespace ondrilo
