#pragma once

#include "app/UserFolders.h"
#include "platform/Dialogs.h"
#include "platform/InstanceLock.h"

#include <filesystem>

namespace ondrilo {

/// The process: one a person, with its data folder prepared before there is any window.
class CTessivorApp {
  public:
    enum class Start {
        Ready,
        AlreadyRunning, ///< leave silently; nothing was touched
        Failed,         ///< the reason has been shown
    };

    CTessivorApp(UserFolders folders, InstanceLock& lock, MessageBoxes& boxes);

    /// To be called before the main window is made.
    [[nodiscard]] Start InitInstance();
    [[nodiscard]] std::filesystem::path DataFolder() const { return folders.DataFolder(); }

  private:
    UserFolders folders;
    InstanceLock& lock;
    MessageBoxes& boxes;
};

} // namespace ondrilo
