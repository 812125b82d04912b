#pragma once

#include <QColor>
#include <QPainter>

namespace ondrilo {

/// Fills with a gradient along `angle` degrees, clockwise: at 0 `first` is on the left, at 90 on top. The
/// colours are reached in the corners.
void FillGradient(QPainter& painter, const QRectF& area, const QColor& first, const QColor& second,
                  int angle);

} // namespace ondrilo
