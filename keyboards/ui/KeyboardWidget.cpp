#include "keyboards/ui/KeyboardWidget.h"

#include "keyboards/Pictograms.h"
#include "keyboards/ui/KeyPicture.h"
#include "platform/qt/QtConversion.h"

namespace ondrilo {

KeyboardWidget::KeyboardWidget(COnScreenKeyboard& keyboard, MessageQueue& queue, TimerService& timers,
                               SoundPlayer& sounds, const DataFolder& data, const QtPictures& pictures,
                               QWidget* parent)
    : QWidget(parent), keyboard(keyboard), queue(queue), pictures(pictures),
      activation(keyboard, queue, timers, sounds, data), observation(keyboard.Observe(*this)) {
    setObjectName("keyboard");
    setAccessibleName(tr("Teclado de Ecrã"));
    KeysReplaced();
    LayoutChanged();
}

void KeyboardWidget::KeyChanged(COnScreenKeyIdentifier identifier) {
    if (const auto view = views.find(identifier); view != views.end())
        Refresh(identifier, view->second);
}

void KeyboardWidget::KeysReplaced() {
    views.clear();
    for (const auto& identifier : keyboard.AllKeys())
        AddView(identifier);
    setAccessibleDescription(ToQString(keyboard.Description()));
}

void KeyboardWidget::LayoutChanged() {
    const auto size = keyboard.GetSize();
    resize(size.width, size.height);
    for (auto& [identifier, view] : views) {
        const auto place = keyboard.PlaceOf(identifier);
        view.button->setGeometry(place.x, place.y, place.width, place.height);
        // Settings reach the keys without a notice for each: a layout follows them.
        Refresh(identifier, view);
    }
}

void KeyboardWidget::AddView(COnScreenKeyIdentifier identifier) {
    auto& view = views[identifier];
    view.button = std::make_unique<CColorButton>(identifier, activation, this);
    connect(view.button.get(), &CColorButton::doubleClicked, this, [this, identifier] {
        if (keyboard.Key(identifier).IsActive())
            queue.Post(Message::UM_KEY_DOUBLE_CLICK, identifier.Packed());
    });
    Refresh(identifier, view);
    view.button->show();
}

void KeyboardWidget::Refresh(COnScreenKeyIdentifier identifier, KeyView& view) {
    const auto& key = keyboard.Key(identifier);
    if (view.pictureLabel != key.data.label) {
        view.pictureLabel = key.data.label;
        view.picture = LoadKeyPicture(key.data.label, pictures);
    }
    view.button->ShowFace(MakeKeyFace(key, keyboard.Settings(), keyboard.IsEditing(), view.picture),
                          key.pressDotShowing);
    const auto description = ToQString(key.data.description);
    if (view.button->accessibleName() != description)
        view.button->setAccessibleName(description);
}

} // namespace ondrilo
