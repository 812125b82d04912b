#pragma once

#include <QMenuBar>

#include <functional>

namespace ondrilo {

/// Numbers of the menu's entries, as far as somebody handles them.
namespace command {
inline constexpr int DisableMenu = 32947, HideChrome = 32951, Copy = 57634, Cut = 57635, Paste = 57637,
                     Undo = 57643, About = 57664, Quit = 57665;
} // namespace command

/// Fills the menu bar with all entries of the program. Each action carries its number as its data and has the
/// object name "command_<number>"; those whose work does not exist yet are disabled. `chosen` gets the number
/// of an entry that was chosen.
void FillMainMenu(QMenuBar& bar, const std::function<void(int command)>& chosen);

} // namespace ondrilo
