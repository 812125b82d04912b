#include "platform/qt/FocusReturn.h"

#include <QApplication>
#include <QTimer>

namespace ondrilo {
namespace {

WindowId FocusedBefore(const QWidget* outer, const Desktop& desktop) {
    return outer ? outer->winId() : desktop.ForegroundWindow();
}

} // namespace

int RunDialog(QDialog& dialog, Desktop& desktop) {
    // The desktop tells of the focus late: an outer dialog that has only just opened may not have it yet.
    auto* outer = QApplication::activeModalWidget();
    const FocusReturn focusReturn(desktop, FocusedBefore(outer, desktop));
    if (outer)
        dialog.setParent(outer, dialog.windowFlags());
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    // A window manager that guards against focus stealing would leave the focus with the program that the
    // person writes in: they did not touch a window of ours that could have it.
    QTimer::singleShot(0, &dialog, [&] { desktop.Activate(dialog.winId()); });
    return dialog.exec();
}

} // namespace ondrilo
