#pragma once

#include <filesystem>

namespace ondrilo {

/// Sounds never block and never fail in a way the person notices, but for PlayToEnd.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    /// Plays a WAV file and returns at its end, or at once if it cannot be heard.
    virtual void PlayToEnd(const std::filesystem::path& file) = 0;
    /// Stops what is playing; then starts the file, unless `file` is empty.
    virtual void Play(const std::filesystem::path& file) = 0;
    virtual void Beep() = 0;
};

} // namespace ondrilo
