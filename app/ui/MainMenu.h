#pragma once

#include <QMenuBar>

#include <functional>

namespace ondrilo {

/// Fills the menu bar with all entries of the program. Each action carries its number as its data and has the
/// object name "command_<number>"; those whose work does not exist yet are disabled. `chosen` gets the number
/// of an entry that was chosen.
void FillMainMenu(QMenuBar& bar, const std::function<void(int number)>& chosen);

} // namespace ondrilo
