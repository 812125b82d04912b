#include "platform/qt/AccessibleBus.h"

#include "platform/qt/AccessibleCaret.h"
#include "platform/qt/AccessibleParagraph.h"
#include "platform/qt/AccessiblePrograms.h"
#include "platform/x11/X11Windows.h"

#include <utility>

namespace ondrilo {

/// Brings together what programs tell and who is followed.
class AccessibleBus::Watch {
  public:
    void Follow(std::uint32_t process);
    [[nodiscard]] const AccessibleFocus* Focus() const;
    [[nodiscard]] Rectangle ClientArea() const;
    void FocusOrCaretChanged(std::uint32_t process);

    std::uint32_t followed = 0;
    AccessibleObject focused; ///< there
    std::function<void(bool isElsewhere)> caretMoved;
    AccessiblePrograms programs{[this](std::uint32_t process) {
        FocusOrCaretChanged(process);
    }};
    X11Windows windows;
    AccessibleCaret caret{programs.Connection(), [this] {
                              return ClientArea();
                          }};
    AccessibleParagraph paragraph{programs.Connection(), [this] {
                                      return Focus();
                                  }};
};

void AccessibleBus::Watch::Follow(std::uint32_t process) {
    windows.ProcessEvents(); // nobody needs them here, but the server keeps what is not fetched
    followed = process;
    focused = {};
    caretMoved = nullptr;
    paragraph.Drop();
    caret.Forget();
    if (const auto* focus = Focus()) {
        focused = focus->object;
        caret.Move(*focus);
    }
}

const AccessibleFocus* AccessibleBus::Watch::Focus() const {
    return followed == 0 ? nullptr : programs.FocusOf(followed);
}

Rectangle AccessibleBus::Watch::ClientArea() const {
    const auto window = windows.ForegroundWindow();
    return windows.ProcessOf(window) == followed ? windows.ClientArea(window) : Rectangle();
}

void AccessibleBus::Watch::FocusOrCaretChanged(std::uint32_t process) {
    if (process != followed)
        return;
    if (const auto* focus = Focus()) {
        caret.Move(*focus);
        paragraph.Renew();
        const bool isElsewhere = std::exchange(focused, focus->object) != focus->object;
        if (caretMoved)
            caretMoved(isElsewhere);
    }
}

AccessibleBus::AccessibleBus() : watch(std::make_unique<Watch>()) {
}

AccessibleBus::~AccessibleBus() = default;

void AccessibleBus::Follow(std::uint32_t process) {
    watch->Follow(process);
}

void AccessibleBus::OnCaretMoved(const std::function<void(bool isElsewhere)>& moved) {
    watch->caretMoved = moved;
}

Point AccessibleBus::CaretPosition() const {
    watch->caret.Renew();
    return watch->caret.Position();
}

bool AccessibleBus::IsPassword() const {
    using Kind = AccessibleFocus::Kind;
    const auto* focus = watch->Focus();
    return focus && (focus->kind == Kind::Awaited || focus->kind == Kind::Password);
}

void AccessibleBus::ReadParagraph(const std::function<void(Paragraph)>& answer) {
    watch->paragraph.Read(answer);
}

} // namespace ondrilo
