#pragma once

#include "platform/SpeechEngine.h"

#include <memory>
#include <string>

namespace ondrilo {

/// Where the speech service listens.
struct SpeechAddress {
    /// The path of its socket; empty if there is none, and then nothing is ever heard.
    std::string socket;
    /// Whether it is the person's own service, which is started if nobody listens.
    bool startable = false;

    /// $SPEECHD_ADDRESS ("unix_socket:PATH", a service that somebody else starts), or else the person's own
    /// service under $XDG_RUNTIME_DIR.
    [[nodiscard]] static SpeechAddress FromEnvironment();
};

/// Speaks through Speech Dispatcher, over its socket. Needs a running event loop, which is never held: a
/// service that does not answer in time is dropped and connected to anew. A text that could not be passed on
/// meanwhile is said later only if it is the newest one and a few seconds old at most.
class SpeechDispatcher : public SpeechEngine {
  public:
    /// Connects in the background and lists the voices.
    explicit SpeechDispatcher(SpeechAddress address = SpeechAddress::FromEnvironment());
    ~SpeechDispatcher() override;

    [[nodiscard]] std::vector<Text> Voices() const override;
    /// A text of blanks only gets the voice ready and cuts off nothing.
    void Say(TextView text, TextView voice, const SpeechManner& manner) override;
    void Stop() override;

  private:
    class Dialogue;
    std::unique_ptr<Dialogue> dialogue;
};

} // namespace ondrilo
