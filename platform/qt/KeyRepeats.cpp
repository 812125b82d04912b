#include "platform/qt/KeyRepeats.h"

#include "platform/x11/BareRepeats.h"

#include <QApplication>
#include <QKeyEvent>

namespace ondrilo {

KeyRepeats::KeyRepeats() {
    // Qt without a screen offers the interface too, and no connection.
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && x11->connection())
        AskForBareRepeats(x11->connection());
    qApp->installEventFilter(this);
}

bool KeyRepeats::eventFilter(QObject* watched, QEvent* event) {
    // While another program has the keys, nobody tells of their releases.
    if (event->type() == QEvent::ApplicationDeactivate)
        down.clear();
    if (!watched->isWindowType())
        return false;
    if (event->type() == QEvent::KeyPress)
        return PassOnAsRepeat(watched, static_cast<QKeyEvent&>(*event));
    if (event->type() == QEvent::KeyRelease)
        down.erase(static_cast<QKeyEvent&>(*event).nativeScanCode());
    return false;
}

bool KeyRepeats::PassOnAsRepeat(QObject* window, QKeyEvent& press) {
    const bool isKey = press.nativeScanCode() != 0; // an input method may send keys that nobody holds
    if (!isKey || press.isAutoRepeat() || down.insert(press.nativeScanCode()).second)
        return false;
    QKeyEvent repeat(press.type(), press.key(), press.modifiers(), press.nativeScanCode(),
                     press.nativeVirtualKey(), press.nativeModifiers(), press.text(), true,
                     static_cast<quint16>(press.count()));
    repeat.setTimestamp(press.timestamp());
    QCoreApplication::sendEvent(window, &repeat);
    press.setAccepted(repeat.isAccepted());
    return true;
}

} // namespace ondrilo
