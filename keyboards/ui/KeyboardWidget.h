#pragma once

#include "keyboards/KeyActivation.h"
#include "keyboards/ui/CColorButton.h"
#include "platform/qt/QtPictures.h"

#include <QWidget>

#include <map>
#include <memory>

namespace ondrilo {

/// The on-screen keyboard as a child widget with a widget for each key, at the places of the layout. Follows
/// the keyboard and repaints only the keys that changed. What is done to a key only posts to the queue.
/// Keyboard, services and data folder outlive it.
class KeyboardWidget : public QWidget, private KeyboardObserver {
    Q_OBJECT

  public:
    KeyboardWidget(COnScreenKeyboard& keyboard, MessageQueue& queue, TimerService& timers,
                   SoundPlayer& sounds, const DataFolder& data, const QtPictures& pictures, QWidget* parent);

  private:
    /// A key's widget, with the picture for as long as the label that it was made of stands.
    struct KeyView {
        std::unique_ptr<CColorButton> button;
        Text pictureLabel;
        QImage picture;
    };

    void KeyChanged(COnScreenKeyIdentifier identifier) override;
    void KeysReplaced() override;
    void LayoutChanged() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void TellWhereThePointerRests();

    void AddView(COnScreenKeyIdentifier identifier);
    void Refresh(COnScreenKeyIdentifier identifier, KeyView& view);

    COnScreenKeyboard& keyboard;
    MessageQueue& queue;
    const QtPictures& pictures;
    KeyActivation activation;
    std::map<COnScreenKeyIdentifier, KeyView> views;
    RegistrationHandle observation;
};

} // namespace ondrilo
