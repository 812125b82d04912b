#pragma once

#include "keyboards/COnScreenKeyData.h"
#include "keyboards/KeyType.h"

#include <vector>

/// The live keyboard: lines of groups of keys, with what painting needs to know of each. Changed by
/// COnScreenKeyboard only.
namespace ondrilo {

struct COnScreenKey {
    /// Colours are real ones here; a default was resolved when it came in.
    COnScreenKeyData data;
    int letters = 0; ///< characters that the key must be wide for
    bool hovered = false;
    bool highlighted = false; ///< by scanning
    bool flashed = false;     ///< in the lit half of a flash
    bool on = false;          ///< what the key stands for is on: Shift, Caps Lock, the event log
    double dwell = 0;         ///< part of the dwell time that has passed, 0 to 1
    bool lastPageMark = false;
    bool pressDotShowing = false;
    bool modified = false;
    Rectangle place; ///< inside its group

    [[nodiscard]] KeyType Type() const { return KeyTypeOf(data.type); }
    [[nodiscard]] bool IsActive() const { return data.active == 1; }
    [[nodiscard]] bool IsLit() const { return hovered || highlighted || flashed || on; }
    /// A lit key swaps its colours. Marks and symbols show in the colour that the key does not have now.
    [[nodiscard]] Color LitBackground() const { return data.textColor; }
    [[nodiscard]] Color LitText() const { return data.backgroundColor; }
};

struct COnScreenKeyGroup {
    Text name;
    std::vector<COnScreenKey> keys;
    bool modified = false;
    Rectangle place; ///< inside its line
};

struct COnScreenKeyLine {
    Text name;
    std::vector<COnScreenKeyGroup> groups;
    bool modified = false;
    Rectangle place; ///< inside the keyboard
};

} // namespace ondrilo
