#include "tools/KnownKeyNames.h"

#include "targets/CKeyboard.h"

namespace ondrilo {

namespace {

/// The key table alone is wanted; nothing is typed.
class NoOutput : public KeyOutput {
  public:
    [[nodiscard]] std::optional<LayoutKey> KeyOf(char) const override { return std::nullopt; }
    void TypeCharacter(char) override {}
    void KeyDown(int) override {}
    void KeyUp(int) override {}
    [[nodiscard]] bool IsCapsLockOn() const override { return false; }
};

CKeySet StandardKeys() {
    NoOutput output;
    CKeyboard keyboard(output);
    keyboard.Initialize();
    return keyboard.keySet;
}

} // namespace

bool IsKnownKeyName(TextView name) {
    static const auto keys = StandardKeys();
    return keys.GetCode(name).has_value();
}

} // namespace ondrilo
