#pragma once

#include "keyboards/COnScreenKeyboard.h"

#include <string>

namespace ondrilo {

/// A keyboard's layout as text (UTF-8), tab-separated: comment lines with the measures behind it, then one
/// line a key. "-" stands for a text that was not measured, since the key's width does not depend on it.
[[nodiscard]] std::string ListLayout(const COnScreenKeyboard& keyboard, const KeyMeasures& measures);

} // namespace ondrilo
