#pragma once

#include "app/FrameWindow.h"
#include "platform/DataFolder.h"
#include "platform/Dialogs.h"

#include <functional>
#include <string>

namespace ondrilo {

/// What the environment tells of the desktop session that the program runs in.
struct SessionKind {
    bool isWayland = false;
    /// There is an X server, of its own or beside Wayland.
    bool hasX = false;

    /// `variable` gives the value of an environment variable, or the empty text.
    static SessionKind FromEnvironment(const std::function<std::string(const std::string&)>& variable);
};

/// Tells the person what a Wayland session keeps from the program: in a message box at the first start there,
/// which a file in the data folder remembers, in the status line at later ones.
void TellSessionKind(SessionKind kind, const DataFolder& folder, MessageBoxes& boxes, FrameWindow& frame);

} // namespace ondrilo
