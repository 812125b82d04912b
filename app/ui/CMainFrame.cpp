#include "app/ui/CMainFrame.h"

#include "app/MenuCommands.h"
#include "app/ui/MainMenu.h"
#include "targets/ui/KeyStrokes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QExposeEvent>
#include <QLayout>
#include <QMenuBar>
#include <QStatusBar>
#include <QTextEdit>
#include <QWindow>

#include <utility>

namespace ondrilo {
namespace {

/// After so many tries in short order the window manager will not give the size that the window asks for.
/// Sizes that the desktop tells late cost a few tries too.
constexpr int kMostRefusals = 10;
constexpr int kRefusalMemory = 1000; // milliseconds
constexpr int kSettleTime = 200;     // milliseconds
constexpr int kTakeover = 2000;      // milliseconds; what shows later was asked for by the person

} // namespace

CMainFrame::CMainFrame(MessageQueue& queue, const KeyOutput& layout)
    : QMainWindow(nullptr, Qt::Window | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus),
      queue(queue), layout(layout), view(new ViewWidget(this)) {
    setObjectName("mainFrame");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setCentralWidget(view);
    FillMainMenu(*menuBar(), [this](int number) { OnMenuCommand(number); });
    menuBar()->setNativeMenuBar(false);
    statusBar()->setSizeGripEnabled(false);
    connect(view, &ViewWidget::resized, this, &CMainFrame::OnViewResized);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationInactive)
            ForbidFocus(true);
    });
    settleTimer.setSingleShot(true);
    settleTimer.setInterval(kSettleTime);
    connect(&settleTimer, &QTimer::timeout, this, &CMainFrame::Settle);
    winId(); // there is a native window from now on
    windowHandle()->installEventFilter(this);
}

void CMainFrame::SetTitle(TextView title) {
    if (const auto text = ToQString(title); text != windowTitle())
        setWindowTitle(text);
}

// Flags are changed on the native window: a widget would be hidden and made anew for it.

void CMainFrame::SetTopMost(bool topMost) {
    windowHandle()->setFlag(Qt::WindowStaysOnTopHint, topMost);
}

void CMainFrame::SetAcceptsFocus(bool accepts) {
    // A session that starts anew beside the program that the person writes in leaves the focus there. Who
    // goes to the editor activates the window.
    if (!accepts || !activated)
        ForbidFocus(!accepts);
}

void CMainFrame::ForbidFocus(bool forbidden) {
    windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, forbidden);
}

void CMainFrame::ShowCaption(bool visible) {
    windowHandle()->setFlag(Qt::FramelessWindowHint, !visible);
}

void CMainFrame::ShowMenu(bool visible) {
    menuBar()->setVisible(visible);
}

void CMainFrame::ShowStatusBar(bool visible) {
    statusBar()->setVisible(visible);
}

void CMainFrame::Activate() {
    if (isActiveWindow())
        return;
    ForbidFocus(false);
    raise();
    activateWindow();
}

void CMainFrame::SetBusy(bool newBusy) {
    if (busy == newBusy)
        return;
    busy = newBusy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void CMainFrame::Show(WindowState state) {
    switch (state) {
    case WindowState::Maximized:
        return showMaximized();
    case WindowState::Minimized:
        startsMinimized = !activated;
        QTimer::singleShot(kTakeover, this, [this] { startsMinimized = false; });
        return showMinimized();
    case WindowState::Normal:
        return showNormal();
    }
}

WindowState CMainFrame::State() const {
    if (isMinimized())
        return WindowState::Minimized;
    return isMaximized() ? WindowState::Maximized : WindowState::Normal;
}

Rectangle CMainFrame::Frame() const {
    return FromQRect(frameGeometry());
}

void CMainFrame::MoveTo(Point position) {
    move(ToQPoint(position));
    if (!activated)
        firstCorner = ToQPoint(position);
}

void CMainFrame::FitClient(Size size) {
    const QSize wanted(size.width, size.height);
    if (wanted != fitted)
        refusals = 0;
    fitted = wanted;
    if (refusals > kMostRefusals)
        return;
    const int menuHeight = menuBar()->isHidden() ? 0 : menuBar()->heightForWidth(size.width);
    const int statusHeight = statusBar()->isHidden() ? 0 : statusBar()->sizeHint().height();
    resize(size.width, menuHeight + size.height + statusHeight);
    QMainWindow::layout()->activate();
    settleTries = 0;
    settleTimer.start();
}

/// A size that is asked for while the window manager takes the window over can be lost, and nobody tells: the
/// widgets then have a size that the window on the screen has not.
void CMainFrame::Settle() {
    if (State() != WindowState::Normal || windowHandle()->size() == size() || ++settleTries > kMostRefusals)
        return;
    windowHandle()->resize(size());
    settleTimer.start();
}

void CMainFrame::EnableMenu(bool enabled) {
    for (auto* action : menuBar()->actions())
        action->setEnabled(enabled);
}

void CMainFrame::SetBackground(const std::optional<WindowBackground>& background) {
    view->SetBackground(background);
}

void CMainFrame::Redraw() {
    view->update();
    TellLater(&FrameWindowListener::OnDraw);
}

void CMainFrame::SetStatusMessage(TextView text) {
    statusBar()->showMessage(ToQString(text));
}

void CMainFrame::Close() {
    QTimer::singleShot(0, this, &CMainFrame::CloseWhenFree);
}

/// An open dialog is given up first: whoever asked for it must be done before everything ends.
void CMainFrame::CloseWhenFree() {
    constexpr int patience = 50; // milliseconds
    auto* dialog = QApplication::activeModalWidget();
    if (!dialog) {
        close();
        return;
    }
    dialog->close();
    QTimer::singleShot(patience, this, &CMainFrame::CloseWhenFree);
}

void CMainFrame::TellLater(void (FrameWindowListener::*what)()) {
    QMetaObject::invokeMethod(
        this,
        [this, what] {
            if (listener)
                (listener->*what)();
        },
        Qt::QueuedConnection);
}

void CMainFrame::OnViewResized() {
    if (isMinimized())
        return;
    if (!isMaximized() && view->size() == fitted)
        return;
    if (!lastRefusal.isValid() || lastRefusal.hasExpired(kRefusalMemory))
        refusals = 0;
    lastRefusal.start();
    ++refusals;
    queue.Post(Message::UM_LAYOUT);
}

bool CMainFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose && windowHandle()->isExposed() &&
        !std::exchange(exposurePending, true))
        QMetaObject::invokeMethod(this, &CMainFrame::OnExposed, Qt::QueuedConnection);
    return QMainWindow::eventFilter(watched, event);
}

void CMainFrame::OnExposed() {
    exposurePending = false;
    // Until it shows, a window does not know its decorations, and places what is inside them.
    if (const auto corner = std::exchange(firstCorner, std::nullopt)) {
        move(*corner);
        // The move carries a size too, and that may be one that the desktop told late.
        if (State() == WindowState::Normal && fitted.isValid())
            FitClient({fitted.width(), fitted.height()});
    }
    // A window manager may overlook the wish of a window that it has not yet taken over.
    if (std::exchange(startsMinimized, false))
        windowHandle()->showMinimized();
    if (!listener)
        return;
    // A window that refuses the focus is as active as it gets once it shows.
    if (!std::exchange(activated, true))
        listener->OnActivateView();
    listener->OnDraw();
}

void CMainFrame::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // The former place is told after the former state: a size asked for in between would come with the place
    // of the maximised window.
    if (event->type() == QEvent::WindowStateChange && !isMinimized())
        QTimer::singleShot(isMaximized() ? 0 : kSettleTime, this, [this] { queue.Post(Message::UM_LAYOUT); });
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        activated = true;
        TellLater(&FrameWindowListener::OnActivateView);
    }
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    // The end of a session may ask a question; a second wish to close must not come in between.
    if (std::exchange(closing, true)) {
        event->ignore();
        return;
    }
    if (auto* told = std::exchange(listener, nullptr))
        told->OnDestroy();
    event->accept();
    QApplication::quit();
}

void CMainFrame::keyPressEvent(QKeyEvent* event) {
    if (listener)
        for (const int code : VirtualKeysOf(*event, layout))
            listener->OnKeyDown(code, KeyDataOf(*event));
}

void CMainFrame::keyReleaseEvent(QKeyEvent* event) {
    if (!listener || event->isAutoRepeat())
        return;
    for (const int code : VirtualKeysOf(*event, layout))
        listener->OnKeyUp(code, KeyDataOf(*event));
}

void CMainFrame::OnMenuCommand(int number) {
    Edit(number);
    // A menu still being closed must not be in the way of what the command does to the window.
    QMetaObject::invokeMethod(
        this,
        [this, number] {
            if (listener)
                listener->OnMenuCommand(number);
        },
        Qt::QueuedConnection);
}

void CMainFrame::Edit(int number) {
    auto* editor = view->findChild<QTextEdit*>();
    if (!editor)
        return;
    switch (number) {
    case menu::Undo:
        return editor->undo();
    case menu::Cut:
        return editor->cut();
    case menu::Copy:
        return editor->copy();
    case menu::Paste:
        return editor->paste();
    default:
        return;
    }
}

} // namespace ondrilo
