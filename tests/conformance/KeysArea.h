#pragma once

#include "targets/CKeyboard.h"
#include "tests/conformance/Area.h"
#include "tests/support/FakeKeyOutput.h"

namespace ondrilo::conformance {

/// Key names, sequences and the counts of keys.
class KeysArea : public Area {
  public:
    explicit KeysArea(const std::filesystem::path& folder);

  private:
    void AddCounts();
    void AddSimulator();
    [[nodiscard]] Values PropertiesOf(const Text& name) const;
    [[nodiscard]] Values EventsOf(const Text& sequence);

    FakeKeyOutput keys;
    CKeyboard keyboard{keys};
};

} // namespace ondrilo::conformance
