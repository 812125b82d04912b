#include "app/Notice.h"

namespace ondrilo {

std::unique_ptr<TextWindow> ShowNotice(SessionWindows& windows, const Desktop& desktop, TextView text,
                                       int lower) {
    auto notice = windows.CreateNotice({{"Tahoma", 20}, 0x161616, 0xE4E4E4, 10});
    notice->SetText(text);
    const auto screen = desktop.ScreenArea({});
    notice->MoveTo(
        {screen.x + (screen.width - notice->GetSize().width) / 2, screen.y + screen.height / 2 + lower});
    notice->Show();
    return notice;
}

} // namespace ondrilo
