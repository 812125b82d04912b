#pragma once

#include "platform/Keyboard.h"

#include <QKeyEvent>

#include <cstdint>
#include <vector>

/// Key events of Qt as virtual keys; see platform/x11/VirtualKeys.h.
namespace ondrilo {

[[nodiscard]] std::vector<int> VirtualKeysOf(const QKeyEvent& event, const KeyOutput& layout);
/// The same for a character that an input method composed.
[[nodiscard]] std::vector<int> VirtualKeysOf(char c, Qt::KeyboardModifiers down, const KeyOutput& layout);

[[nodiscard]] std::int32_t KeyDataOf(const QKeyEvent& event);

} // namespace ondrilo
