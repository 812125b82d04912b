#pragma once

#include "platform/Sound.h"

#include <vector>

namespace ondrilo {

/// Keeps what was played; a stop is an empty path.
class FakeSounds : public SoundPlayer {
  public:
    void PlayToEnd(const std::filesystem::path& file) override { playedToEnd.push_back(file); }
    void Play(const std::filesystem::path& file) override { played.push_back(file); }
    void Beep() override { ++beeps; }

    std::vector<std::filesystem::path> playedToEnd;
    std::vector<std::filesystem::path> played;
    int beeps = 0;
};

} // namespace ondrilo
