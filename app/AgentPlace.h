#pragma once

#include "app/FrameWindow.h"

namespace ondrilo {

/// Room that the animated character takes at the top left corner of the window, in pixels.
inline constexpr Size kAgentRoom{100, 50};

[[nodiscard]] inline Point AgentPlace(const FrameWindow& frame) {
    const auto window = frame.Frame();
    return {window.x - kAgentRoom.width, window.y - kAgentRoom.height};
}

} // namespace ondrilo
