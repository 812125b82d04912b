#pragma once

#include "keyboards/ui/KeyFace.h"

#include <QPainter>

namespace ondrilo {

/// The one painter of keys, on a window, a picture or paper.
void PaintKey(QPainter& painter, const QRectF& key, const KeyFace& face);

/// The circle that answers a press, on top of the painted key.
void PaintPressDot(QPainter& painter, const QRectF& key, const QColor& color);

} // namespace ondrilo
