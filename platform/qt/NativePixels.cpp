#include "platform/qt/NativePixels.h"

#include "platform/qt/QtConversion.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace ondrilo {
namespace {

int Scaled(int distance, qreal factor) {
    return static_cast<int>(std::lround(distance * factor));
}

QRect NativeArea(const QScreen& screen) {
    const auto area = screen.geometry();
    const auto factor = screen.devicePixelRatio();
    return {area.topLeft(), QSize(Scaled(area.width(), factor), Scaled(area.height(), factor))};
}

/// The screen that holds a point of the server; the primary one for a point beside all of them.
const QScreen* NativeScreenAt(QPoint point) {
    for (const auto* screen : QGuiApplication::screens())
        if (NativeArea(*screen).contains(point))
            return screen;
    return QGuiApplication::primaryScreen();
}

Point ScaledFrom(QPoint corner, Point point, qreal factor) {
    return {corner.x() + Scaled(point.x - corner.x(), factor),
            corner.y() + Scaled(point.y - corner.y(), factor)};
}

} // namespace

Point FromNative(Point point) {
    const auto* screen = NativeScreenAt(ToQPoint(point));
    return screen ? ScaledFrom(screen->geometry().topLeft(), point, 1 / screen->devicePixelRatio()) : point;
}

Rectangle FromNative(Rectangle area) {
    const Point corner = FromNative(Point{area.x, area.y});
    const auto* screen = NativeScreenAt({area.x, area.y});
    const qreal factor = screen ? 1 / screen->devicePixelRatio() : 1;
    return {corner.x, corner.y, Scaled(area.width, factor), Scaled(area.height, factor)};
}

Point ToNative(Point point) {
    const auto* screen = QGuiApplication::screenAt(ToQPoint(point));
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? ScaledFrom(screen->geometry().topLeft(), point, screen->devicePixelRatio()) : point;
}

} // namespace ondrilo
