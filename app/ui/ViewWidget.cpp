#include "app/ui/ViewWidget.h"

#include "keyboards/ui/Fill.h"
#include "platform/qt/QtConversion.h"

#include <QPainter>

namespace ondrilo {
namespace {

constexpr Color kEmptyView = 0xBEBEBE;

} // namespace

ViewWidget::ViewWidget(QWidget* parent) : QWidget(parent) {
    setObjectName("view");
    setFocusPolicy(Qt::NoFocus);
    // With a fill of an unknown kind nothing is painted, and the old content stays.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ViewWidget::SetBackground(const std::optional<WindowBackground>& newBackground) {
    background = newBackground;
    stretched = {};
    picture = {};
    if (background && !background->picture.empty())
        picture.load(QString::fromStdString(background->picture.string()));
    update();
}

void ViewWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!background)
        painter.fillRect(rect(), ToQColor(kEmptyView));
    else if (!picture.isNull())
        PaintPicture(painter);
    else if (background->fill == 0)
        painter.fillRect(rect(), ToQColor(background->first));
    else if (background->fill == 1)
        FillGradient(painter, rect(), ToQColor(background->first), ToQColor(background->second),
                     background->angle);
}

void ViewWidget::PaintPicture(QPainter& painter) {
    const auto pixels = size() * devicePixelRatio();
    if (stretched.size() != pixels) {
        stretched =
            QPixmap::fromImage(picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        stretched.setDevicePixelRatio(devicePixelRatio());
    }
    painter.drawPixmap(0, 0, stretched);
}

void ViewWidget::resizeEvent(QResizeEvent*) {
    Q_EMIT resized();
}

} // namespace ondrilo
