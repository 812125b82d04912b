#pragma once

#include "keyboards/COnScreenKeyboard.h"
#include "platform/qt/QtPictures.h"

#include <QPainter>

namespace ondrilo {

/// Paints a whole keyboard, laid out before, at the painter's origin: for pictures and paper.
void PaintKeyboard(QPainter& painter, const COnScreenKeyboard& keyboard, const QtPictures& pictures);

} // namespace ondrilo
