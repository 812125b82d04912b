#pragma once

#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// The choice of the best scores, with its rules for equal ones.
class SelectionArea : public Area {
  public:
    explicit SelectionArea(const std::filesystem::path& folder);
};

} // namespace ondrilo::conformance
