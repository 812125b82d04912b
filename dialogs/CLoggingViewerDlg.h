#pragma once

#include "dialogs/LogLines.h"
#include "platform/LogViewer.h"

#include <QListView>
#include <QTimer>

namespace ondrilo {

/// The window that follows the event log. It stands over the main window and beside the program that the
/// person writes in, whose focus it never takes: it is used by pointer and by assistive programs. A line
/// waits in it until nothing else is to be done, so that whoever writes one does not wait for the window;
/// only the last ones are kept.
class CLoggingViewerDlg : public QWidget, public LogViewer {
    Q_OBJECT

  public:
    /// `owner` is the main window, and outlives this one.
    explicit CLoggingViewerDlg(QWidget& owner);

    [[nodiscard]] bool Show() override;
    [[nodiscard]] bool IsVisible() const override { return isVisible(); }
    void AddLine(TextView line) override;
    void Close() override;

  private:
    [[nodiscard]] QSize FirstSize() const;
    void ShowWaiting();
    void Clear();

    QListView* list = new QListView;
    LogLines* lines = new LogLines(this);
    std::deque<Text> waiting;
    QTimer timer;
    int widest = 0; ///< of all rows since the list was empty, in pixels
};

} // namespace ondrilo
