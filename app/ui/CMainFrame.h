#pragma once

#include "app/FrameWindow.h"
#include "app/ui/ViewWidget.h"
#include "platform/Keyboard.h"
#include "platform/MessageQueue.h"
#include "platform/qt/KeyRepeats.h"
#include "platform/qt/QtConversion.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

namespace ondrilo {

/// The main window: top-most, beside the programs that the person writes in, and never taking the focus from
/// them. Only while the editor in it is in use does it accept the focus, as any other window; when another
/// program becomes active, it goes back to refusing.
class CMainFrame : public QMainWindow, public FrameWindow {
    Q_OBJECT

  public:
    /// All of them outlive the window.
    CMainFrame(MessageQueue& queue, const KeyOutput& layout);

    /// The parent of editor and keyboard.
    [[nodiscard]] QWidget& View() { return *view; }

    void SetListener(FrameWindowListener* newListener) override { listener = newListener; }
    [[nodiscard]] WindowId Id() const override { return winId(); }
    void SetTitle(TextView title) override;
    void SetTopMost(bool topMost) override;
    void SetAcceptsFocus(bool accepts) override;
    void Activate() override;
    void SetBusy(bool busy) override;
    void Show(WindowState state) override;
    [[nodiscard]] WindowState State() const override;
    [[nodiscard]] Rectangle Frame() const override;
    void MoveTo(Point position) override;
    [[nodiscard]] Point ViewOrigin() const override { return FromQPoint(view->mapToGlobal(QPoint(0, 0))); }
    [[nodiscard]] Size ClientSize() const override { return {view->width(), view->height()}; }
    void FitClient(Size size) override;
    void ShowCaption(bool visible) override;
    void ShowMenu(bool visible) override;
    void ShowStatusBar(bool visible) override;
    void EnableMenu(bool enabled) override;
    void SetBackground(const std::optional<WindowBackground>& background) override;
    void HoldUpdates(bool hold) override { setUpdatesEnabled(!hold); }
    void Redraw() override;
    void SetStatusMessage(TextView text) override;
    void Close() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    /// Calls the listener from the event loop, unless there is none by then.
    void TellLater(void (FrameWindowListener::*what)());
    void CloseWhenFree();
    void ForbidFocus(bool forbidden);
    void Settle();
    void OnExposed();
    void OnViewResized();
    void OnMenuCommand(int number);
    void Edit(int number);

    MessageQueue& queue;
    const KeyOutput& layout;
    const KeyRepeats keyRepeats;
    FrameWindowListener* listener = nullptr;
    ViewWidget* view;
    bool startsMinimized = false;
    std::optional<QPoint> firstCorner; // where the session wants the window that has not shown yet
    QSize fitted;
    int refusals = 0; // how often in short order the view did not get the fitted size
    QElapsedTimer lastRefusal;
    QTimer settleTimer;
    int settleTries = 0;
    bool exposurePending = false;
    bool activated = false;
    bool busy = false;
    bool closing = false;
};

} // namespace ondrilo
