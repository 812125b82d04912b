#pragma once

#include "app/Targets.h"
#include "profiles/store/CUserProfileSet.h"
#include "targets/CKeySet.h"

#include <optional>
#include <vector>

namespace ondrilo {

/// The virtual key codes to which the profile gives a special role; 0 for a role without a key. Targets
/// report these keys and do not process them.
class SpecialKeys {
  public:
    SpecialKeys(const CUserProfileSet& profiles, CKeySet& keySet, const Targets& targets);

    /// Takes the codes from the profile and blocks them in the target in use, in place of the former ones.
    /// Each new target needs it, because each keeps its own list.
    void MapSpecialKeys();

    /// Which hot key the code is, from 0; nothing for any other key, and for a profile without hot keys.
    [[nodiscard]] std::optional<int> HotKeyIndex(int code) const;
    /// Hot keys that are given out: one less than the codes in the range.
    [[nodiscard]] int HotKeyLimit() const { return lastHotKey - firstHotKey; }
    [[nodiscard]] Text HotKeyName(int index) const;

    int switch1Key = 0;
    int switch2Key = 0;
    int firstHotKey = 0;
    int lastHotKey = 0;
    int expansionKey = 0;
    int speakWordKey = 0;
    int speakSentenceKey = 0;

  private:
    void Unblock();
    void Map(int& code, TextOption name);
    void Block(int first, int last);

    const CUserProfileSet& profiles;
    CKeySet& keySet;
    const Targets& targets;
    std::vector<int> marked; ///< as reserved, because they have a role now
};

} // namespace ondrilo
