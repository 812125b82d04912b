#include "platform/qt/QtDesktop.h"

#include "platform/qt/NativePixels.h"
#include "platform/qt/QtConversion.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace ondrilo {

QtDesktop::QtDesktop() {
    if (windows.Descriptor() < 0)
        return;
    events.emplace(windows.Descriptor(), QSocketNotifier::Read);
    QObject::connect(&*events, &QSocketNotifier::activated, &*events, [this] { windows.ProcessEvents(); });
}

Text QtDesktop::TitleOf(WindowId window, std::size_t limit) const {
    return windows.TitleOf(window, limit);
}

Rectangle QtDesktop::ClientArea(WindowId window) const {
    return FromNative(windows.ClientArea(window));
}

bool QtDesktop::IsUnder(WindowId window, Point point) const {
    return windows.IsUnder(window, ToNative(point));
}

RegistrationHandle QtDesktop::OnFocusChange(std::function<void()> changed) {
    return windows.OnFocusChange(std::move(changed));
}

Point QtDesktop::PointerPosition() const {
    return FromQPoint(QCursor::pos());
}

void QtDesktop::MovePointer(Point position) {
    QCursor::setPos(ToQPoint(position));
}

Rectangle QtDesktop::ScreenArea(Point near) const {
    const QScreen* screen = QGuiApplication::screenAt(ToQPoint(near));
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? FromQRect(screen->availableGeometry()) : Rectangle{};
}

} // namespace ondrilo
