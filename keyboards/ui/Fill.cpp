#include "keyboards/ui/Fill.h"

#include <QLinearGradient>

#include <cmath>
#include <numbers>

namespace ondrilo {

void FillGradient(QPainter& painter, const QRectF& area, const QColor& first, const QColor& second,
                  int angle) {
    const double radians = angle * std::numbers::pi / 180;
    const QPointF direction(std::cos(radians), std::sin(radians));
    // Half the area's extent along the direction.
    const double reach =
        (std::abs(area.width() * direction.x()) + std::abs(area.height() * direction.y())) / 2;
    QLinearGradient gradient(area.center() - direction * reach, area.center() + direction * reach);
    gradient.setColorAt(0, first);
    gradient.setColorAt(1, second);
    painter.fillRect(area, gradient);
}

} // namespace ondrilo
