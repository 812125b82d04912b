#pragma once

#include "app/FrameWindow.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Caption, menu and status line of the main window. Their state lives as long as the process: a new profile
/// does not bring back what another one removed.
class WindowChrome {
  public:
    WindowChrome(FrameWindow& frame, const CUserProfileSet& profiles);

    /// The view was activated: the first time, the profile decides about chrome and menu.
    void OnActivate();
    void HideChrome() { ShowAll(false); }
    void ShowChrome() { ShowAll(true); }
    /// Hides all three if all are visible, otherwise shows all.
    void ToggleChrome();
    void DisableMenu();
    /// The way back from a hidden or disabled menu.
    void BringBackMenu();

  private:
    void ShowAll(bool visible);
    void ShowCaption(bool visible);
    void ShowMenu(bool visible);
    void ShowStatusBar(bool visible);

    FrameWindow& frame;
    const CUserProfileSet& profiles;
    bool captionVisible = true;
    bool menuVisible = true;
    bool statusBarVisible = true;
    bool firstActivation = true;
};

} // namespace ondrilo
