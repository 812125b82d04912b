#include "keyboards/ui/DrawSymbol.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <cmath>
#include <numbers>
#include <utility>

namespace ondrilo {
namespace {

/// Draws with lengths as parts of the key's height, from the key's middle: x to the right, y downwards. A key
/// that is too narrow for `aspect` (the symbol's room, width by height) shrinks the symbol instead.
class Pencil {
  public:
    Pencil(QPainter& painter, const QRectF& key, QColor color, double aspect)
        : painter(painter), center(key.center()), unit(std::min(key.height(), key.width() / aspect)),
          color(std::move(color)) {}

    [[nodiscard]] QPointF At(double x, double y) const { return center + QPointF(x, y) * unit; }

    /// A bar whose edges lie on device pixels; bars of equal size come out equal.
    void Bar(double left, double top, double right, double bottom) {
        const QSizeF size(SnappedLength((right - left) * unit), SnappedLength((bottom - top) * unit));
        painter.fillRect(QRectF(Snapped(At(left, top)), size), color);
    }
    /// Bars through corners that lie below or beside one another, all of one width and on device pixels.
    void Bars(std::initializer_list<std::pair<double, double>> corners, double width, bool closed = false) {
        const auto line = SnappedLength(width * unit);
        QPainterPath path;
        for (const auto& [x, y] : corners) {
            const auto corner = Snapped(At(x, y) - QPointF(line, line) / 2) + QPointF(line, line) / 2;
            path.elementCount() == 0 ? path.moveTo(corner) : path.lineTo(corner);
        }
        if (closed)
            path.closeSubpath();
        painter.strokePath(path, {color, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin});
    }
    void Fill(std::initializer_list<std::pair<double, double>> corners) {
        painter.fillPath(Path(corners), color);
    }
    void Outline(std::initializer_list<std::pair<double, double>> corners, double width) {
        painter.strokePath(Path(corners), Pen(width, Qt::MiterJoin));
    }
    void Line(double x1, double y1, double x2, double y2, double width) {
        QPainterPath path(At(x1, y1));
        path.lineTo(At(x2, y2));
        painter.strokePath(path, Pen(width, Qt::MiterJoin));
    }
    /// An arc around (x, y), clockwise, in degrees from three o'clock.
    void Arc(double x, double y, double radius, double start, double sweep, double width) {
        const QRectF box(At(x - radius, y - radius), At(x + radius, y + radius));
        QPainterPath path;
        path.arcMoveTo(box, -start);
        path.arcTo(box, -start, -sweep);
        painter.strokePath(path, Pen(width, Qt::MiterJoin));
    }
    /// Text with its capitals `height` tall, centred at (x, y).
    void Letters(const QString& text, double x, double y, double height, bool bold) {
        QFont font("Arial");
        font.setStyleHint(QFont::SansSerif);
        font.setBold(bold);
        font.setPixelSize(100);
        QPainterPath path;
        path.addText(0, 0, font, text);
        const double scale = height * unit / QFontMetricsF(font).capHeight();
        const auto box = path.boundingRect();
        painter.save();
        painter.translate(At(x, y));
        painter.scale(scale, scale);
        painter.translate(-box.center().x(), QFontMetricsF(font).capHeight() / 2);
        painter.fillPath(path, color);
        painter.restore();
    }

  private:
    [[nodiscard]] QPainterPath Path(std::initializer_list<std::pair<double, double>> corners) const {
        QPolygonF polygon;
        for (const auto& [x, y] : corners)
            polygon << At(x, y);
        QPainterPath path;
        path.addPolygon(polygon);
        path.closeSubpath();
        return path;
    }
    [[nodiscard]] QPen Pen(double width, Qt::PenJoinStyle join) const {
        return {color, width * unit, Qt::SolidLine, Qt::FlatCap, join};
    }
    [[nodiscard]] QPointF Snapped(QPointF point) const {
        const auto toDevice = painter.deviceTransform();
        const auto device = toDevice.map(point);
        return toDevice.inverted().map(QPointF(std::round(device.x()), std::round(device.y())));
    }
    [[nodiscard]] double SnappedLength(double length) const {
        const double scale = painter.deviceTransform().m11();
        return std::max(1.0, std::round(length * scale)) / scale;
    }

    QPainter& painter;
    QPointF center;
    double unit;
    QColor color;
};

void DrawShift(Pencil pencil) {
    pencil.Outline(
        {{0, -0.28}, {0.27, 0.02}, {0.12, 0.02}, {0.12, 0.26}, {-0.12, 0.26}, {-0.12, 0.02}, {-0.27, 0.02}},
        0.05);
}

/// Cursor keys: half the triangle is an eighth of the key wide, and an eighth of it tall.
void DrawArrow(QPainter& painter, const QRectF& key, const QColor& color, KeySymbol direction) {
    const double x = key.width() / 8, y = key.height() / 8;
    QPolygonF triangle;
    switch (direction) {
    case KeySymbol::Up:
        triangle = QPolygonF({{0, -y}, {x, y}, {-x, y}});
        break;
    case KeySymbol::Down:
        triangle = QPolygonF({{0, y}, {-x, -y}, {x, -y}});
        break;
    case KeySymbol::Left:
        triangle = QPolygonF({{-x, 0}, {x, -y}, {x, y}});
        break;
    default:
        triangle = QPolygonF({{x, 0}, {-x, y}, {-x, -y}});
    }
    QPainterPath path;
    path.addPolygon(triangle.translated(key.center()));
    path.closeSubpath();
    painter.fillPath(path, color);
}

void DrawEnter(Pencil pencil) {
    pencil.Bars({{0.40, -0.24}, {0.40, 0.10}, {-0.22, 0.10}}, 0.08);
    pencil.Fill({{-0.46, 0.10}, {-0.20, -0.08}, {-0.20, 0.28}});
}

/// The shape ends at 7/8 of the key's width and is drawn with a pen of a twentieth of its height.
void DrawBackspace(QPainter& painter, const QRectF& key, const QColor& color) {
    const double height = std::min(key.height() * 0.44, key.width() * 0.36);
    const double right = key.left() + key.width() * 7 / 8, tip = key.left() + key.width() / 8;
    const double top = key.center().y() - height / 2, bottom = key.center().y() + height / 2;
    const double shoulder = tip + height / 2;
    QPainterPath path;
    path.addPolygon(QPolygonF(
        {{tip, key.center().y()}, {shoulder, top}, {right, top}, {right, bottom}, {shoulder, bottom}}));
    path.closeSubpath();
    painter.strokePath(path, {color, key.height() / 20, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin});
    Pencil pencil(painter, {shoulder, top, right - shoulder, height}, color, 1);
    pencil.Letters("X", 0, 0, 0.52, true);
}

void DrawTab(Pencil pencil) {
    pencil.Bar(-0.44, -0.27, -0.38, -0.01);
    pencil.Bar(-0.18, -0.17, 0.44, -0.11);
    pencil.Fill({{-0.36, -0.14}, {-0.14, -0.27}, {-0.14, -0.01}});
    pencil.Bar(0.38, 0.01, 0.44, 0.27);
    pencil.Bar(-0.44, 0.11, 0.18, 0.17);
    pencil.Fill({{0.36, 0.14}, {0.14, 0.01}, {0.14, 0.27}});
}

/// As wide as the key allows: the bracket stands for the space bar.
void DrawSpace(QPainter& painter, const QRectF& key, const QColor& color) {
    Pencil pencil(painter, key, color, 1);
    const double half = 0.3 * key.width() / std::min(key.height(), key.width());
    pencil.Bars({{-half, -0.10}, {-half, 0.12}, {half, 0.12}, {half, -0.10}}, 0.07);
}

void DrawCapsLock(Pencil pencil) {
    pencil.Bars({{-0.64, -0.26}, {-0.12, -0.26}, {-0.12, 0.26}, {-0.64, 0.26}}, 0.045, true);
    pencil.Letters("A", -0.38, 0, 0.32, true);
    pencil.Letters("Caps", 0.34, 0.17, 0.15, true);
    pencil.Bar(0.22, -0.13, 0.46, 0.03);
    pencil.Line(0.265, -0.13, 0.265, -0.19, 0.04);
    pencil.Line(0.415, -0.13, 0.415, -0.19, 0.04);
    pencil.Arc(0.34, -0.185, 0.075, 180, 180, 0.04);
}

void DrawLoudspeaker(Pencil& pencil, double left) {
    pencil.Bar(left, -0.10, left + 0.12, 0.10);
    pencil.Fill({{left + 0.08, 0}, {left + 0.36, -0.27}, {left + 0.36, 0.27}});
}

void DrawSpeakWord(Pencil pencil) {
    DrawLoudspeaker(pencil, -0.42);
    pencil.Bar(0.12, -0.04, 0.38, 0.04);
}

void DrawSpeakSentence(Pencil pencil) {
    DrawLoudspeaker(pencil, -0.62);
    pencil.Bar(-0.10, -0.04, 0.10, 0.04);
    pencil.Bar(0.18, -0.04, 0.36, 0.04);
    pencil.Bar(0.44, -0.04, 0.62, 0.04);
}

void DrawSpeakAll(Pencil pencil) {
    DrawLoudspeaker(pencil, -0.62);
    pencil.Bar(-0.10, -0.16, 0.62, -0.08);
    pencil.Bar(-0.10, 0.08, 0.46, 0.16);
}

void DrawSendMessage(Pencil pencil) {
    pencil.Bar(-0.68, -0.21, -0.22, -0.14);
    pencil.Bar(-0.68, -0.035, -0.22, 0.035);
    pencil.Bar(-0.68, 0.14, -0.34, 0.21);
    pencil.Bar(-0.06, -0.08, 0.30, 0.08);
    pencil.Fill({{0.66, 0}, {0.28, -0.25}, {0.28, 0.25}});
}

void DrawQuit(Pencil pencil) {
    pencil.Arc(0, 0.02, 0.23, -70, 320, 0.07);
    pencil.Line(0, -0.29, 0, -0.02, 0.07);
}

/// A sheet of half the key's width and height.
void DrawClear(QPainter& painter, const QRectF& key, const QColor& color) {
    const double half = key.width() / key.height() / 4;
    Pencil(painter, key, color, key.width() / key.height())
        .Bars({{-half, -0.25}, {half, -0.25}, {half, 0.25}, {-half, 0.25}}, 0.05, true);
}

/// A third of the key's height as the letters' size makes capitals of a quarter.
void DrawLogging(Pencil pencil) {
    pencil.Letters("LOG", 0, 0, 0.24, false);
}

/// The arrow's head stands across the arc's end and its tip lies further on the same circle.
void DrawNextPredictions(Pencil pencil) {
    constexpr double radius = 0.22, arm = 0.11;
    constexpr auto at = [](double degrees, double distance) {
        const double radians = degrees * std::numbers::pi / 180;
        return std::pair{distance * std::cos(radians), distance * std::sin(radians)};
    };
    pencil.Arc(0, 0, radius, -30, 285, 0.07);
    pencil.Fill({at(-58, radius), at(-108, radius + arm), at(-108, radius - arm)});
}

} // namespace

void DrawSymbol(QPainter& painter, KeySymbol symbol, const QRectF& key, const QColor& color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const auto pencil = [&](double aspect) {
        return Pencil(painter, key, color, aspect);
    };
    switch (symbol) {
    case KeySymbol::Shift:
        DrawShift(pencil(0.8));
        break;
    case KeySymbol::Up:
    case KeySymbol::Down:
    case KeySymbol::Left:
    case KeySymbol::Right:
        DrawArrow(painter, key, color, symbol);
        break;
    case KeySymbol::Enter:
        DrawEnter(pencil(1.2));
        break;
    case KeySymbol::Backspace:
        DrawBackspace(painter, key, color);
        break;
    case KeySymbol::Tab:
        DrawTab(pencil(1.2));
        break;
    case KeySymbol::Space:
        DrawSpace(painter, key, color);
        break;
    case KeySymbol::CapsLock:
        DrawCapsLock(pencil(1.6));
        break;
    case KeySymbol::SpeakWord:
        DrawSpeakWord(pencil(1.45));
        break;
    case KeySymbol::SpeakSentence:
        DrawSpeakSentence(pencil(1.45));
        break;
    case KeySymbol::SpeakAll:
        DrawSpeakAll(pencil(1.45));
        break;
    case KeySymbol::SendMessage:
        DrawSendMessage(pencil(1.6));
        break;
    case KeySymbol::Quit:
        DrawQuit(pencil(0.8));
        break;
    case KeySymbol::Logging:
        DrawLogging(pencil(0.95));
        break;
    case KeySymbol::Clear:
        DrawClear(painter, key, color);
        break;
    case KeySymbol::NextPredictions:
        DrawNextPredictions(pencil(0.8));
        break;
    }
    painter.restore();
}

} // namespace ondrilo
