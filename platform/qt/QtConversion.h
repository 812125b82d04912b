#pragma once

#include "platform/Geometry.h"
#include "platform/Measure.h"
#include "text/Text.h"

#include <QColor>
#include <QFont>
#include <QPoint>
#include <QRect>
#include <QString>

/// The one conversion between the values of the logic and those of Qt.
namespace ondrilo {

/// Windows-1252 to Qt; every byte survives a round trip.
[[nodiscard]] QString ToQString(TextView text);
/// Characters that Windows-1252 lacks become "?".
[[nodiscard]] Text FromQString(const QString& text);

/// A font of that name and size in points; a name that is not installed gives the desktop's default family.
/// Measures and painting both start from here, so that what was measured is what is painted.
[[nodiscard]] QFont ToQFont(const Font& font);
[[nodiscard]] QColor ToQColor(Color color);

[[nodiscard]] inline QPoint ToQPoint(Point point) {
    return {point.x, point.y};
}
[[nodiscard]] inline Point FromQPoint(QPoint point) {
    return {point.x(), point.y()};
}
[[nodiscard]] inline QRect ToQRect(Rectangle area) {
    return {area.x, area.y, area.width, area.height};
}
[[nodiscard]] inline Rectangle FromQRect(QRect area) {
    return {area.x(), area.y(), area.width(), area.height()};
}

} // namespace ondrilo
