#pragma once

#include <QImage>
#include <QPainter>

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

/// The pixels, in device pixels, that are not of `ground`; null if all are.
inline QRect InkOf(const QImage& image, QRgb ground = qRgb(255, 255, 255)) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != ground)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

inline int CountPixels(const QImage& image, QRgb color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color ? 1 : 0;
    return count;
}

/// A one-coloured picture file.
inline void SavePicture(const std::string& path, QSize size, QColor color) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    picture.save(QString::fromStdString(path), "BMP");
}

} // namespace ondrilo
