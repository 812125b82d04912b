#pragma once

#include "text/Text.h"

namespace ondrilo {

/// The desktop's clipboard.
class Clipboard {
  public:
    virtual ~Clipboard() = default;
    /// Its plain text; empty if it holds none. Line breaks are line feeds.
    [[nodiscard]] virtual Text GetText() const = 0;
};

} // namespace ondrilo
