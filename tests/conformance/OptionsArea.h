#pragma once

#include "profiles/CSystemOptions.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// The options of the installation and their file.
class OptionsArea : public Area {
  public:
    explicit OptionsArea(const std::filesystem::path& folder);

  private:
    [[nodiscard]] Values ValueOf(const Text& key);
    void Set(const Text& key, const Text& value);

    CSystemOptions options;
};

} // namespace ondrilo::conformance
