#pragma once

#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// Splitting, classes and forms of texts.
class TextArea : public Area {
  public:
    explicit TextArea(const std::filesystem::path& folder);
};

} // namespace ondrilo::conformance
