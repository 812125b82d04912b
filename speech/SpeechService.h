#pragma once

#include "platform/SpeechEngine.h"

namespace ondrilo {

/// What a profile without a voice has for its name.
inline constexpr TextView kNoVoice = "Nenhum";

/// A speech service with the chosen voice. This form has no voice and stays silent.
class SpeechService {
  public:
    virtual ~SpeechService() = default;
    /// Chooses the voice of that description and how it speaks; the empty name chooses none. False if there
    /// is no such voice, as far as that can be told at once.
    virtual bool SelectVoice(TextView /*name*/, const SpeechManner& /*manner*/) { return false; }
    /// Starts to speak and returns at once; what is being spoken is cut off. False if nothing was passed on.
    virtual bool Speak(TextView) { return false; }
    /// Gives the voice back; Speak fails until the next SelectVoice.
    virtual void Release() {}
};

} // namespace ondrilo
