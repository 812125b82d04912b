#pragma once

#include "app/SessionWindows.h"

namespace ondrilo {

/// Shows a notice in the middle of the screen, its bottom edge `lower` pixels under the middle line. It
/// stands until the handle is dropped.
[[nodiscard]] std::unique_ptr<TextWindow> ShowNotice(SessionWindows& windows, const Desktop& desktop,
                                                     TextView text, int lower = 0);

inline constexpr TextView kStartingNotice = "Ondrilo a iniciar... Por favor aguarde.";
inline constexpr TextView kLoadingProfileNotice = "A carregar perfil... Por favor aguarde.";

} // namespace ondrilo
