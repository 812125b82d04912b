#pragma once

#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <functional>

namespace ondrilo {

/// What `paint` draws on white, `scale` pixels for each logical one.
inline QImage Painted(QSize size, double scale, const std::function<void(QPainter&)>& paint) {
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter);
    return image;
}

/// Where the pixels are, in device pixels, for which `chosen` holds, and how many.
template <class Choice>
std::pair<QRect, int> PixelsWhere(const QImage& image, Choice chosen) {
    std::pair<QRect, int> found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (chosen(image.pixel(x, y)))
                found = {found.first | QRect(x, y, 1, 1), found.second + 1};
    return found;
}

/// The place of all that is not of `ground`; null if all is.
inline QRect InkOf(const QImage& image, QRgb ground = qRgb(255, 255, 255)) {
    return PixelsWhere(image, [ground](QRgb pixel) { return pixel != ground; }).first;
}

inline int CountPixels(const QImage& image, QRgb color) {
    return PixelsWhere(image, [color](QRgb pixel) { return pixel == color; }).second;
}

/// Counts the paints of a widget.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    int paints = 0;

  private:
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// A one-coloured picture file.
inline void SavePicture(const std::string& path, QSize size, QColor color) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    picture.save(QString::fromStdString(path), "BMP");
}

} // namespace ondrilo
