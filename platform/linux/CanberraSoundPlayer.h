#pragma once

#include "platform/Sound.h"

#include <functional>
#include <memory>

namespace ondrilo {

/// Plays through the desktop's sound library. The sound server is only ever spoken to on a thread of its own,
/// since a missing or stuck one can block for any time.
class CanberraSoundPlayer : public SoundPlayer {
  public:
    /// `bell` rings the desktop's bell; called on the caller's thread of Beep.
    explicit CanberraSoundPlayer(std::function<void()> bell);
    ~CanberraSoundPlayer() override;
    void PlayToEnd(const std::filesystem::path& file) override;
    void Play(const std::filesystem::path& file) override;
    void Beep() override;

  private:
    class Worker;
    std::shared_ptr<Worker> worker;
    std::function<void()> bell;
};

} // namespace ondrilo
