#pragma once

#include "platform/Programs.h"

namespace ondrilo {

/// Starts programs in sessions of their own, so that they outlive us and leave no zombies; nothing that they
/// say is kept. A ".desktop" file is started as the desktop would do it; one without a folder is looked for
/// among the installed applications. A ".sh" that cannot run by itself is run by the shell.
class PosixProgramStarter : public ProgramStarter {
  public:
    void Start(TextView path) override;
};

} // namespace ondrilo
