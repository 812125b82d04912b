#pragma once

#include "platform/SpeechEngine.h"

namespace ondrilo {

/// A service that notes what it is to say.
class FakeSpeechEngine : public SpeechEngine {
  public:
    struct Utterance {
        Text text, voice;
        SpeechManner manner;
        bool operator==(const Utterance&) const = default;
    };

    [[nodiscard]] std::vector<Text> Voices() const override { return voices; }
    void Say(TextView text, TextView voice, const SpeechManner& manner) override {
        said.push_back({Text(text), Text(voice), manner});
    }
    void Stop() override { ++stops; }

    std::vector<Text> voices;
    std::vector<Utterance> said;
    int stops = 0;
};

} // namespace ondrilo
