#pragma once

#include "keyboards/KeySymbol.h"

#include <QColor>
#include <QPainter>

namespace ondrilo {

/// Draws the symbol scaled to `key`, the key's rectangle. Straight edges are put on device pixels, so that
/// they stay crisp at any scale factor.
void DrawSymbol(QPainter& painter, KeySymbol symbol, const QRectF& key, const QColor& color);

} // namespace ondrilo
