#pragma once

#include "platform/Geometry.h"

/// Between the pixels of the server, in which other programs tell their places, and the logical pixels of
/// ours. A screen keeps its corner in both; from there on the logical pixels are larger by its scale factor.
namespace ondrilo {

[[nodiscard]] Point FromNative(Point point);
[[nodiscard]] Rectangle FromNative(Rectangle area);
[[nodiscard]] Point ToNative(Point point);

} // namespace ondrilo
