#include "app/PreviewController.h"

namespace ondrilo {

PreviewController::PreviewController(SessionWindows& windows, const Desktop& desktop, const Targets& targets)
    : windows(windows), desktop(desktop), targets(targets) {
}

void PreviewController::ShowPreview(TextView text) {
    if (!previewWindow || targets.IsPassword())
        return;
    previewWindow->SetText(text);
    const auto caret = targets.Current() ? targets.Current()->GetCaretPosition() : Point{};
    if (caret != Point{}) {
        previewWindow->MoveTo(caret);
    } else {
        const auto screen = desktop.ScreenArea({});
        previewWindow->MoveTo({screen.x, screen.y + previewWindow->GetSize().height});
    }
    previewWindow->Show();
}

void PreviewController::HidePreview() {
    if (previewWindow && previewWindow->IsVisible())
        previewWindow->Hide();
}

} // namespace ondrilo
