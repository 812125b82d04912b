#pragma once

#include "app/SessionWindows.h"
#include "app/Targets.h"

namespace ondrilo {

/// The window that shows, at the caret, what a key would write.
class PreviewController {
  public:
    PreviewController(SessionWindows& windows, const Desktop& desktop, const Targets& targets);

    void Create(const TextWindowStyle& style) { previewWindow = windows.CreatePreview(style); }
    void Destroy() { previewWindow.reset(); }

    void ShowPreview(TextView text);
    void HidePreview();

  private:
    SessionWindows& windows;
    const Desktop& desktop;
    const Targets& targets;
    std::unique_ptr<TextWindow> previewWindow;
};

} // namespace ondrilo
