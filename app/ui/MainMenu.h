#pragma once

#include <QMenuBar>

#include <functional>

namespace ondrilo {

/// Numbers of the entries that the window itself carries out.
namespace menu {
inline constexpr int Copy = 57634, Cut = 57635, Paste = 57637, Undo = 57643, About = 57664;
} // namespace menu

/// Fills the menu bar with all entries of the program. Each action carries its number as its data and has the
/// object name "command_<number>"; those whose work does not exist yet are disabled. `chosen` gets the number
/// of an entry that was chosen.
void FillMainMenu(QMenuBar& bar, const std::function<void(int number)>& chosen);

} // namespace ondrilo
