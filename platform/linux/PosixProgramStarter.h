#pragma once

#include "platform/Programs.h"

namespace ondrilo {

/// Starts programs in sessions of their own, so that they outlive us and leave no zombies.
class PosixProgramStarter : public ProgramStarter {
  public:
    void Start(TextView path) override;
};

} // namespace ondrilo
