#pragma once

#include "text/Text.h"

namespace ondrilo {

class ProgramStarter {
  public:
    virtual ~ProgramStarter() = default;
    /// Starts a program without arguments, without waiting; failure is not told.
    virtual void Start(TextView path) = 0;
};

} // namespace ondrilo
