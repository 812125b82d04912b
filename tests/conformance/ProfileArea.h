#pragma once

#include "profiles/CUserProfileProperties.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// The options of a profile and their file.
class ProfileArea : public Area {
  public:
    explicit ProfileArea(const std::filesystem::path& folder);

  private:
    [[nodiscard]] Values ValueOf(const Text& key) const;

    CUserProfileProperties profile;
};

} // namespace ondrilo::conformance
