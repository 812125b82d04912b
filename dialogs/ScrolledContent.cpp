#include "dialogs/ScrolledContent.h"

#include <QApplication>
#include <QStyle>

namespace ondrilo {

ScrolledContent::ScrolledContent(QWidget* content) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    // Tab alone would do, but a mnemonic goes anywhere.
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, QWidget* focused) { ShowFocused(focused); });
}

/// With room for the bar at the side: should the height not do, the width still does.
QSize ScrolledContent::sizeHint() const {
    return widget()->sizeHint() + QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
}

QSize ScrolledContent::minimumSizeHint() const {
    return QScrollArea::minimumSizeHint().boundedTo(sizeHint());
}

void ScrolledContent::ShowFocused(QWidget* focused) {
    if (focused && widget()->isAncestorOf(focused))
        ensureWidgetVisible(focused);
}

} // namespace ondrilo
