#pragma once

#include "app/Environment.h"
#include "app/SessionServices.h"
#include "app/Targets.h"
#include "profiles/CSystemOptions.h"
#include "profiles/store/CUserProfileSet.h"

namespace ondrilo {

/// Places keyboard and editor in the main window and the window on the screen, and tells the state of the
/// session in its title.
class WindowPlacement {
  public:
    WindowPlacement(const Environment& environment, const CUserProfileSet& profiles,
                    const CSystemOptions& systemOptions, COnScreenKeyboard& keyboard, const Targets& targets,
                    const SessionServices& services);

    /// The window of the keyboard on show, which moves with it; null for none.
    void SetKeyboardWindow(KeyboardWindow* window) { keyboardWindow = window; }

    void LayOut();
    void RefreshTitle();
    /// Title, order, state, place and background for a session that begins.
    void SetUpWindow();
    /// The picture or the fill behind editor and keyboard.
    void ShowBackground();
    /// The session ended: an empty view.
    void ClearBackground();

  private:
    void FillMaximizedWindow();
    void FitWindow();
    void PlaceEditor(int width, Point corner);
    void PlaceKeyboard(Point corner);
    [[nodiscard]] int EditorHeight() const;
    [[nodiscard]] int Coordinate(IntegerOption option) const;
    [[nodiscard]] TextView TitleMark() const;
    [[nodiscard]] const CUserProfileProperties& Options() const { return profiles.Active().properties; }

    FrameWindow& frame;
    const Desktop& desktop;
    const TextMeasure& textMeasure;
    const PictureMeasure& pictureMeasure;
    const CUserProfileSet& profiles;
    const CSystemOptions& systemOptions;
    COnScreenKeyboard& keyboard;
    const Targets& targets;
    SessionServices services;
    KeyboardWindow* keyboardWindow = nullptr;
};

} // namespace ondrilo
