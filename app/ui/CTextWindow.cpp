#include "app/ui/CTextWindow.h"

#include "platform/qt/QtConversion.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace ondrilo {

CTextWindow::CTextWindow(const TextWindowStyle& style, QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus),
      style(style) {
    setObjectName("textWindow");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    setFont(ToQFont(style.font));
    Fit();
    // On top of everything, it would cover the buttons of a question.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* focused) {
        if (focused && focused->modality() != Qt::NonModal)
            lower();
        else
            raise();
    });
}

void CTextWindow::SetText(TextView newText) {
    text = ToQString(newText);
    setAccessibleName(text);
    Fit();
    if (isVisible())
        repaint();
}

void CTextWindow::MoveTo(Point position) {
    lowerLeft = position;
    Fit();
}

void CTextWindow::Show() {
    show();
    // The event loop, which would tell that the window is mapped, may be far away: a notice stands during
    // long work. Without a window manager's say the server maps it at once.
    setAttribute(Qt::WA_Mapped);
    repaint();
}

void CTextWindow::Fit() {
    const QFontMetrics measures(font());
    const QSize size(measures.horizontalAdvance(text) + 2 * style.margin, measures.height());
    setGeometry(OnScreen({QPoint(lowerLeft.x, lowerLeft.y - size.height()), size}));
}

/// Above a caret in the uppermost line of the screen, or after one at its right edge, nobody would see the
/// text.
QRect CTextWindow::OnScreen(QRect place) const {
    const auto* found = QGuiApplication::screenAt(ToQPoint(lowerLeft));
    const QRect area = (found ? found : screen())->geometry();
    place.moveLeft(std::max(area.left(), std::min(place.left(), area.right() + 1 - place.width())));
    place.moveTop(std::max(area.top(), std::min(place.top(), area.bottom() + 1 - place.height())));
    return place;
}

void CTextWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(style.background));
    painter.setPen(ToQColor(style.text));
    painter.drawText(rect().adjusted(style.margin, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

} // namespace ondrilo
