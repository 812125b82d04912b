#pragma once

#include "platform/Clipboard.h"

namespace ondrilo {

/// What was copied last, in any program.
class QtClipboard : public Clipboard {
  public:
    [[nodiscard]] Text GetText() const override;
};

} // namespace ondrilo
