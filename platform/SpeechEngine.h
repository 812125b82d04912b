#pragma once

#include "text/Text.h"

#include <optional>
#include <vector>

namespace ondrilo {

/// How a voice says a text, each value from -100 to 100; what is absent is as the service has it by default.
struct SpeechManner {
    std::optional<int> rate;
    std::optional<int> pitch;
    std::optional<int> volume;
    bool operator==(const SpeechManner&) const = default;
};

/// A service that speaks. Every call returns at once, whatever state the service is in; what cannot be said
/// is silence, and nobody is told.
class SpeechEngine {
  public:
    virtual ~SpeechEngine() = default;
    /// The descriptions of all voices ("Portuguese (Portugal) - espeak-ng"), each once, in the service's
    /// order; none until the service has told them.
    [[nodiscard]] virtual std::vector<Text> Voices() const = 0;
    /// Cuts off what is being said and says `text` with the voice of that description. While the voices are
    /// not known, the newest text waits for them; a voice that there is not is silent.
    virtual void Say(TextView text, TextView voice, const SpeechManner& manner) = 0;
    /// Cuts off what is being said or waits to be.
    virtual void Stop() = 0;
};

} // namespace ondrilo
