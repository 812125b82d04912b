#include "dialogs/options/ColorField.h"

#include "platform/qt/FocusReturn.h"
#include "platform/qt/QtConversion.h"

#include <QColorDialog>
#include <QPainter>

namespace ondrilo {
namespace {

Color FromQColor(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

} // namespace

ColorField::ColorField(Color color, Desktop& desktop) : color(color), desktop(desktop) {
    const int height = fontMetrics().height();
    setIconSize({4 * height, height});
    connect(this, &QPushButton::clicked, this, &ColorField::Choose);
    ShowColor();
}

void ColorField::Choose() {
    QColorDialog chooser(ToQColor(color), this);
    chooser.setObjectName("colorChooser");
    chooser.setWindowTitle(accessibleName());
    // A chooser of the desktop's own would be a window that nobody here can put in front or give focus to.
    chooser.setOption(QColorDialog::DontUseNativeDialog);
    if (RunDialog(chooser, desktop) != QDialog::Accepted || chooser.selectedColor() == ToQColor(color))
        return;
    color = FromQColor(chooser.selectedColor());
    ShowColor();
    Q_EMIT Chosen(color);
}

void ColorField::ShowColor() {
    QPixmap swatch(iconSize());
    swatch.fill(ToQColor(color));
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    setIcon(swatch);
    setText(tr("Escolher..."));
    setAccessibleDescription(ToQColor(color).name());
}

} // namespace ondrilo
