#pragma once

#include "app/Environment.h"
#include "app/Targets.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Keeps the main window away from the caret of the program being written in, or beside it.
class CaretFollower {
  public:
    CaretFollower(const Environment& environment, const CUserProfileSet& profiles,
                  const COnScreenKeyboard& keyboard, const Targets& targets);

    /// What the profile wants; nothing while the caret is unknown.
    void Move();
    void MoveWindowAwayFromCaret();
    void FollowCaret();

  private:
    [[nodiscard]] Point Caret() const;
    /// Pixels to keep free at the left and the top for the animated character.
    [[nodiscard]] Size AgentRoom() const;

    FrameWindow& frame;
    const Desktop& desktop;
    const CUserProfileSet& profiles;
    const COnScreenKeyboard& keyboard;
    const Targets& targets;
};

} // namespace ondrilo
