#pragma once

#include "app/FrameWindow.h"

namespace ondrilo {

/// For as long as it lives the main window stands in the normal order of windows, not above all others.
class [[nodiscard]] TopMostPause {
  public:
    explicit TopMostPause(FrameWindow& frame) : frame(frame) { frame.SetTopMost(false); }
    TopMostPause(const TopMostPause&) = delete;
    TopMostPause& operator=(const TopMostPause&) = delete;
    ~TopMostPause() { frame.SetTopMost(true); }

  private:
    FrameWindow& frame;
};

} // namespace ondrilo
