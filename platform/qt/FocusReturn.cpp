#include "platform/qt/FocusReturn.h"

#include <QTimer>

namespace ondrilo {

int RunDialog(QDialog& dialog, Desktop& desktop) {
    const FocusReturn focusReturn(desktop);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    // A window manager that guards against focus stealing would leave the focus with the program that the
    // person writes in: they did not touch a window of ours that could have it.
    QTimer::singleShot(0, &dialog, [&] { desktop.Activate(dialog.winId()); });
    return dialog.exec();
}

} // namespace ondrilo
