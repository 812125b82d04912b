#pragma once

#include "app/Countdown.h"
#include "app/Environment.h"
#include "app/EventWriter.h"
#include "app/KeySender.h"
#include "app/PredictionCycle.h"
#include "app/PreviewController.h"
#include "app/SpecialKeys.h"

namespace ondrilo {

/// Follows the focus of the desktop: whoever has it becomes the text target, once it has settled.
class TargetController {
  public:
    TargetController(const Environment& environment, const CUserProfileSet& profiles, Targets& targets,
                     SpecialKeys& specialKeys, PreviewController& preview, PredictionCycle& cycle,
                     KeySender& sender, CKeyboard& keyboardSimulator, Countdowns& countdowns,
                     EventWriter& events);

    /// The internal editor, if the profile has one.
    void CreateInternalEditor();
    /// The options changed while a session runs: editor and special keys follow.
    void ApplyOptions();
    /// From here on the focus is followed; no target is in use yet.
    void StartFollowing();
    void StopFollowing();
    /// The countdown of the target ran out: takes the foreground window as it is now.
    void AttachForeground();
    /// The window shows again, maybe out of a task bar that gave nobody the focus: looks at the foreground
    /// once more when that has settled.
    void OnExposed();

  private:
    void DressEditor();
    void OnFocusChange();
    [[nodiscard]] bool IsStillThere(WindowId foreground) const;
    [[nodiscard]] WindowId RemainingWindow() const;
    bool GiveFocusBack();
    void AttachTarget();
    void AttachInternal();
    void AttachExternal(WindowId window);

    Desktop& desktop;
    TargetHook& targetHook;
    AccessibleText& accessibleText;
    MessageQueue& queue;
    FrameWindow& frame;
    SessionWindows& windows;
    const CUserProfileSet& profiles;
    Targets& targets;
    SpecialKeys& specialKeys;
    PreviewController& preview;
    PredictionCycle& cycle;
    KeySender& sender;
    CKeyboard& keyboardSimulator;
    Countdowns& countdowns;
    EventWriter& events;
    WindowId lastForegroundWindow = 0;
    WindowId recentWindow = 0;     ///< of the same program, that last had the focus
    std::uint32_t lastProcess = 0; ///< that it belonged to
    bool gaveFocusBack = false;    ///< since somebody last had it
    RegistrationHandle focusHook;
};

} // namespace ondrilo
