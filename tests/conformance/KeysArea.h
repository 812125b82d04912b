#pragma once

#include "targets/CKeyboard.h"
#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

/// A Portuguese keyboard that keeps what was pressed.
class RecordedKeys : public KeyOutput {
  public:
    struct Event {
        bool down = false;
        int code = 0;
    };

    [[nodiscard]] std::optional<LayoutKey> KeyOf(char c) const override;
    void TypeCharacter(char) override {}
    void KeyDown(int code) override { events.push_back({true, code}); }
    void KeyUp(int code) override { events.push_back({false, code}); }
    [[nodiscard]] bool IsCapsLockOn() const override { return false; }

    std::vector<Event> events;
};

/// Key names, sequences and the counts of keys.
class KeysArea : public Area {
  public:
    explicit KeysArea(const std::filesystem::path& folder);

  private:
    void AddCounts();
    void AddSimulator();
    [[nodiscard]] Values PropertiesOf(const Text& name) const;
    [[nodiscard]] Values EventsOf(const Text& sequence);

    RecordedKeys keys;
    CKeyboard keyboard{keys};
};

} // namespace ondrilo::conformance
