#pragma once

#include "app/SessionWindows.h"
#include "app/ui/CMainFrame.h"
#include "platform/Clock.h"
#include "platform/Sound.h"
#include "platform/qt/QtPictures.h"

namespace ondrilo {

/// Makes the session's windows as widgets: editor and keyboard inside the main frame's view, text windows
/// beside it.
class QtSessionWindows : public SessionWindows {
  public:
    /// All of them outlive the factory and what it makes.
    struct Services {
        CMainFrame& frame;
        MessageQueue& queue;
        TimerService& timers;
        SoundPlayer& sounds;
        const KeyOutput& layout;
        const DataFolder& data;
        const QtPictures& pictures;
    };
    explicit QtSessionWindows(Services services) : services(services) {}

    [[nodiscard]] std::unique_ptr<TextSurface> CreateEditorBox() override;
    [[nodiscard]] std::unique_ptr<KeyboardWindow> CreateKeyboardWindow(COnScreenKeyboard& keyboard) override;
    [[nodiscard]] std::unique_ptr<TextWindow> CreatePreview(const TextWindowStyle& style) override;
    [[nodiscard]] std::unique_ptr<TextWindow> CreateNotice(const TextWindowStyle& style) override;

  private:
    Services services;
};

} // namespace ondrilo
