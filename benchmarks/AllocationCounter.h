#pragma once

#include <cstddef>

namespace ondrilo {

/// Calls of operator new in this program so far.
[[nodiscard]] std::size_t Allocations();

} // namespace ondrilo
