#include "keyboards/ui/KeyboardWidget.h"

#include "keyboards/Pictograms.h"
#include "keyboards/ui/KeyPicture.h"
#include "platform/qt/QtConversion.h"

#include <QCursor>
#include <QEvent>

#include <algorithm>

namespace ondrilo {

KeyboardWidget::KeyboardWidget(COnScreenKeyboard& keyboard, MessageQueue& queue, TimerService& timers,
                               SoundPlayer& sounds, const DataFolder& data, const QtPictures& pictures,
                               QWidget* parent)
    : QWidget(parent), keyboard(keyboard), queue(queue), pictures(pictures),
      activation(keyboard, queue, timers, sounds, data), observation(keyboard.Observe(*this)) {
    setObjectName("keyboard");
    setAccessibleName(tr("Teclado de Ecrã"));
    installEventFilter(this);
    window()->installEventFilter(this);
    KeysReplaced();
    LayoutChanged();
}

void KeyboardWidget::KeyChanged(COnScreenKeyIdentifier identifier) {
    const auto view = views.find(identifier);
    if (view == views.end())
        return;
    // A notice is about one change: where it was the dwell, the face is as before.
    if (!view->second.button->ShowDwell(keyboard.Key(identifier).dwell))
        Refresh(identifier, view->second);
}

void KeyboardWidget::KeysReplaced() {
    views.clear();
    for (const auto& identifier : keyboard.AllKeys())
        AddView(identifier);
    setAccessibleDescription(ToQString(keyboard.Description()));
}

void KeyboardWidget::LayoutChanged() {
    TellWhereThePointerRests();
    const auto size = keyboard.GetSize();
    resize(size.width, size.height);
    for (auto& [identifier, view] : views) {
        const auto place = keyboard.PlaceOf(identifier);
        view.button->setGeometry(place.x, place.y, place.width, place.height);
        // Settings reach the keys without a notice for each: a layout follows them.
        Refresh(identifier, view);
    }
}

/// The keys move with the keyboard and with its window, which may follow the caret or come back from the task
/// bar. After a dialog the pointer may stand on a key because it chose something there.
bool KeyboardWidget::eventFilter(QObject* watched, QEvent* event) {
    constexpr QEvent::Type moves[] = {QEvent::Move, QEvent::Show, QEvent::WindowStateChange,
                                      QEvent::WindowUnblocked};
    if (std::find(std::begin(moves), std::end(moves), event->type()) != std::end(moves))
        TellWhereThePointerRests();
    return QWidget::eventFilter(watched, event);
}

void KeyboardWidget::TellWhereThePointerRests() {
    activation.KeysMoved(FromQPoint(QCursor::pos()));
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
