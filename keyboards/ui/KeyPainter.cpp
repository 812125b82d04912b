#include "keyboards/ui/KeyPainter.h"

#include "keyboards/ui/DrawSymbol.h"
#include "keyboards/ui/Fill.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace ondrilo {
namespace {

/// Every device pixel that the key touches, whole: a key's edge falls inside a pixel at uneven scale factors,
/// and what is left of the pixel would keep any colour.
QRectF WholePixels(const QPainter& painter, const QRectF& key) {
    if (painter.paintEngine()->type() != QPaintEngine::Raster)
        return key;
    const auto toDevice = painter.deviceTransform();
    return toDevice.inverted().mapRect(QRectF(toDevice.mapRect(key).toAlignedRect()));
}

void PaintFill(QPainter& painter, const QRectF& key, const KeyFace& face) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    const auto area = WholePixels(painter, key);
    if (face.gradientEnd)
        FillGradient(painter, area, face.fill, *face.gradientEnd, face.gradientAngle);
    else
        painter.fillRect(area, face.fill);
}

void PaintLine(QPainter& painter, const QRectF& area, const KeyFace& face, Qt::Alignment alignment) {
    painter.setFont(face.font);
    painter.drawText(area, static_cast<int>(alignment) | Qt::AlignVCenter | Qt::TextSingleLine, face.text);
}

void PaintWrapped(QPainter& painter, const QRectF& key, const KeyFace& face) {
    painter.setFont(face.font);
    const double margin = face.keyMargin;
    painter.drawText(key.adjusted(margin, margin, 0, 0), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     face.text);
}

/// The largest font, going down by half a point, in which the caption fits the strip.
QFont CaptionFont(const KeyFace& face, QSizeF strip) {
    auto font = face.font;
    for (double points = face.captionPoints; points >= 0.2; points -= 0.5) {
        font.setPointSizeF(points);
        const QFontMetricsF measures(font);
        if (measures.horizontalAdvance(face.text) + 4 <= strip.width() && measures.height() <= strip.height())
            break;
    }
    return font;
}

/// Draws the caption and returns the area that it leaves for the picture.
QRectF PaintCaption(QPainter& painter, const QRectF& key, const KeyFace& face) {
    if (face.text.isEmpty())
        return key;
    auto font = face.font;
    font.setPointSizeF(std::max(face.captionPoints, 0.2));
    const double height = QFontMetricsF(font).height();
    const QRectF strip(key.left() + 4, key.top() + 4, key.width() - 8, height);
    painter.setFont(CaptionFont(face, strip.size()));
    painter.drawText(strip, Qt::AlignCenter | Qt::TextSingleLine, face.text);
    return key.adjusted(0, height + 8, 0, 0);
}

/// Scales by hand to the very pixels of the device: a painter's own scaling skips pixels of large pictures.
void PaintScaled(QPainter& painter, const QRectF& target, const QImage& picture) {
    const auto device = painter.deviceTransform().mapRect(target).toAlignedRect();
    // Paper takes the whole picture.
    if (device.size() == picture.size() || painter.paintEngine()->type() != QPaintEngine::Raster)
        painter.drawImage(target, picture);
    else
        painter.drawImage(target,
                          picture.scaled(device.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void PaintPicture(QPainter& painter, const QRectF& key, const KeyFace& face) {
    if (face.picture.isNull())
        return;
    const auto area = PaintCaption(painter, key, face);
    const double scale = std::min(area.width() / face.picture.width(), area.height() / face.picture.height());
    const QSizeF size(std::floor(face.picture.width() * scale) - 2 * face.imageMargin,
                      std::floor(face.picture.height() * scale) - 2 * face.imageMargin);
    if (size.width() < 1 || size.height() < 1)
        return;
    PaintScaled(painter, {area.center() - QPointF(size.width(), size.height()) / 2, size}, face.picture);
}

void PaintContent(QPainter& painter, const QRectF& key, const KeyFace& face) {
    painter.setPen(face.ink);
    switch (face.content) {
    case KeyFace::Content::None:
        break;
    case KeyFace::Content::Symbol:
        DrawSymbol(painter, face.symbol, key, face.mark);
        break;
    case KeyFace::Content::CentredLine:
        PaintLine(painter, key, face, Qt::AlignHCenter);
        break;
    case KeyFace::Content::LeftLine:
        PaintLine(painter, key.adjusted(face.keyMargin, 0, 0, 0), face, Qt::AlignLeft);
        break;
    case KeyFace::Content::Wrapped:
        PaintWrapped(painter, key, face);
        break;
    case KeyFace::Content::Picture:
        PaintPicture(painter, key, face);
        break;
    }
}

/// A triangle in the lower left corner, pointing right: the key leads to another keyboard.
void PaintLinkMark(QPainter& painter, const QRectF& key, const QColor& color) {
    const auto bottom = key.bottomLeft();
    QPainterPath triangle;
    triangle.addPolygon(
        QPolygonF({bottom + QPointF(6, -16), bottom + QPointF(6, -6), bottom + QPointF(16, -11)}));
    triangle.closeSubpath();
    painter.fillPath(triangle, color);
}

/// A bar along the right edge: these are the last predictions.
void PaintPageMark(QPainter& painter, const QRectF& key, const KeyFace& face) {
    const QRectF bar(key.right() - 4 - face.pageMarkWidth, key.top() + 4, face.pageMarkWidth,
                     key.height() - 8);
    painter.fillRect(bar, face.mark);
}

QColor Translucent(QColor color, int alpha) {
    color.setAlpha(alpha);
    return color;
}

} // namespace

void PaintKey(QPainter& painter, const QRectF& key, const KeyFace& face) {
    painter.save();
    PaintFill(painter, key, face);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    painter.setClipRect(key, Qt::IntersectClip);
    PaintContent(painter, key, face);
    if (face.isLink)
        PaintLinkMark(painter, key, face.mark);
    if (face.pageMarkWidth > 0)
        PaintPageMark(painter, key, face);
    painter.restore();
}

void PaintPressDot(QPainter& painter, const QRectF& key, const QColor& color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Translucent(color, 70));
    painter.setPen(Qt::NoPen);
    const double radius = std::min(key.width(), key.height()) * 2 / 5;
    painter.drawEllipse(key.center(), radius, radius);
    painter.restore();
}

void PaintDwellRing(QPainter& painter, const QRectF& key, const KeyFace& face, double progress) {
    constexpr int sixteenths = 16; // of a degree: the unit of arcs
    const double side = std::min(key.width(), key.height());
    const double pen = std::max(side / 16, 3.0);
    QRectF circle(0, 0, side * 4 / 5 - pen, side * 4 / 5 - pen);
    circle.moveCenter(key.center());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    // A picture may have any colour; on the others the fill is there already.
    if (face.content == KeyFace::Content::Picture) {
        painter.setPen(QPen(face.fill, pen + 2));
        painter.drawEllipse(circle);
    }
    painter.setPen(QPen(Translucent(face.mark, 50), pen));
    painter.drawEllipse(circle);
    // Not opaque, so that letters of the same colour stand out from it.
    painter.setPen(QPen(Translucent(face.mark, 170), pen, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(circle, 90 * sixteenths, -static_cast<int>(progress * 360 * sixteenths));
    painter.restore();
}

} // namespace ondrilo
