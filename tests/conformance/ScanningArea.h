#pragma once

#include "keyboards/CScanning.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// Scanning tick by tick, on a keyboard that the queries put together.
class ScanningArea : public Area {
  public:
    explicit ScanningArea(const std::filesystem::path& folder);

  private:
    void AddBuilding(const std::filesystem::path& file);
    void AddEvents();
    void AddQueries();
    [[nodiscard]] Values Ticks(int count);

    KeyboardContent content;
    COnScreenKeyboard keyboard;
    MessageQueue queue;
    CScanning scanning{keyboard, queue};
};

} // namespace ondrilo::conformance
