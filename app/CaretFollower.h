#pragma once

#include "app/Environment.h"
#include "app/Targets.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Keeps the main window away from the caret of the program being written in, or beside it: whole, on the
/// screen of the caret.
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
    /// True if the keyboard stands at the caret's right rather than above it.
    [[nodiscard]] bool GoesBeside() const;
    /// Pixels to keep free at the left and the top for the animated character.
    [[nodiscard]] Size AgentRoom() const;
    void MoveTo(Point corner);

    FrameWindow& frame;
    const Desktop& desktop;
    const CUserProfileSet& profiles;
    const COnScreenKeyboard& keyboard;
    const Targets& targets;
};

} // namespace ondrilo
