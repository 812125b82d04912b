#pragma once

#include "text/Text.h"

#include <vector>

namespace ondrilo {

/// A speech service with the chosen voice. This form has no voice and stays silent.
class SpeechService {
  public:
    virtual ~SpeechService() = default;
    /// Chooses the voice of that description; the empty name chooses none. False if there is no such voice.
    virtual bool SelectVoice(TextView) { return false; }
    /// Starts to speak and returns at once; what is being spoken is cut off. False if nothing was passed on.
    virtual bool Speak(TextView) { return false; }
    /// The descriptions of all voices, as far as they are known yet.
    [[nodiscard]] virtual std::vector<Text> GetVoices() { return {}; }
    /// Gives the voice back; Speak fails until the next SelectVoice.
    virtual void Release() {}
};

} // namespace ondrilo
