#include "app/ui/QtSessionWindows.h"

#include "app/ui/CTextWindow.h"
#include "keyboards/ui/KeyboardWidget.h"
#include "targets/ui/CTextBox.h"

namespace ondrilo {
namespace {

class PlacedKeyboard : public KeyboardWindow {
  public:
    explicit PlacedKeyboard(std::unique_ptr<KeyboardWidget> widget) : widget(std::move(widget)) {
        this->widget->show();
    }
    void MoveTo(Point position) override { widget->move(position.x, position.y); }

  private:
    std::unique_ptr<KeyboardWidget> widget;
};

} // namespace

std::unique_ptr<TextSurface> QtSessionWindows::CreateEditorBox() {
    auto box = std::make_unique<CTextBox>(services.layout, &services.frame.View());
    auto& frame = services.frame;
    QObject::connect(box.get(), &CTextBox::clickedInto, &frame, [&frame] { frame.Activate(); });
    return box;
}

std::unique_ptr<KeyboardWindow> QtSessionWindows::CreateKeyboardWindow(COnScreenKeyboard& keyboard) {
    return std::make_unique<PlacedKeyboard>(
        std::make_unique<KeyboardWidget>(keyboard, services.queue, services.timers, services.sounds,
                                         services.data, services.pictures, &services.frame.View()));
}

std::unique_ptr<TextWindow> QtSessionWindows::CreatePreview(const TextWindowStyle& style) {
    return std::make_unique<CTextWindow>(style, &services.frame.View());
}

std::unique_ptr<TextWindow> QtSessionWindows::CreateNotice(const TextWindowStyle& style) {
    return std::make_unique<CTextWindow>(style, nullptr);
}

} // namespace ondrilo
