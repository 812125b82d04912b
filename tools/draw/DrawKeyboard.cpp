#include "tools/draw/DrawKeyboard.h"

#include "keyboards/ui/PaintKeyboard.h"
#include "platform/qt/QtConversion.h"

#include <QPageLayout>
#include <QPdfWriter>

#include <stdexcept>

namespace ondrilo {
namespace {

constexpr double kSheetMargin = 10; // millimetres

[[noreturn]] void ThrowCannotWrite(const std::string& file) {
    throw std::runtime_error("cannot write " + file);
}

QSize SizeOf(const COnScreenKeyboard& keyboard) {
    return {std::max(keyboard.GetSize().width, 1), std::max(keyboard.GetSize().height, 1)};
}

} // namespace

void DrawPng(const COnScreenKeyboard& keyboard, const QtPictures& pictures, const std::string& file,
             double scale) {
    QImage image(SizeOf(keyboard) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintKeyboard(painter, keyboard, pictures);
    painter.end();
    if (!image.save(QString::fromStdString(file), "PNG"))
        ThrowCannotWrite(file);
}

void DrawPdf(const COnScreenKeyboard& keyboard, const QtPictures& pictures, const std::string& file,
             TextView title) {
    const auto size = SizeOf(keyboard);
    QPdfWriter writer(QString::fromStdString(file));
    // One unit is one pixel of the layout, so that letters keep their size beside the keys.
    writer.setResolution(96);
    writer.setTitle(ToQString(title));
    writer.setPageLayout({QPageSize(QPageSize::A4),
                          size.width() > size.height() ? QPageLayout::Landscape : QPageLayout::Portrait,
                          QMarginsF(kSheetMargin, kSheetMargin, kSheetMargin, kSheetMargin)});
    QPainter painter;
    if (!painter.begin(&writer))
        ThrowCannotWrite(file);
    const double scale = std::min(static_cast<double>(writer.width()) / size.width(),
                                  static_cast<double>(writer.height()) / size.height());
    painter.scale(scale, scale);
    PaintKeyboard(painter, keyboard, pictures);
}

} // namespace ondrilo
