#pragma once

#include "keyboards/ui/KeyFace.h"

#include <QPainter>

namespace ondrilo {

/// The one painter of keys, on a window, a picture or paper.
void PaintKey(QPainter& painter, const QRectF& key, const KeyFace& face);

/// The circle that answers a press, on top of the painted key.
void PaintPressDot(QPainter& painter, const QRectF& key, const QColor& color);

/// The ring that grows while the pointer rests on a key, clockwise from the top, on a faint full circle;
/// `progress` 0 to 1.
void PaintDwellRing(QPainter& painter, const QRectF& key, const KeyFace& face, double progress);

} // namespace ondrilo
