#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// Keyboard files: what is read, asked and written back.
class KeyboardArea : public Area {
  public:
    explicit KeyboardArea(const std::filesystem::path& folder);

  private:
    void AddQueries();

    KeyboardSettings settings;
    COnScreenKeyboard keyboard;
};

} // namespace ondrilo::conformance
