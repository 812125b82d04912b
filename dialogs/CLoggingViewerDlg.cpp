#include "dialogs/CLoggingViewerDlg.h"

#include "platform/qt/QtConversion.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace ondrilo {
namespace {

constexpr int kPeriod = 50;    // milliseconds between two portions of lines
constexpr qint64 kPortion = 2; // milliseconds that the lines of one portion take
/// Size of the list when it first opens, in characters and lines.
constexpr int kListWidth = 90;
constexpr int kListHeight = 16;

} // namespace

// A dialog of the main window, and not a window of its own: it goes above and below other programs' windows
// with the main window.
CLoggingViewerDlg::CLoggingViewerDlg(QWidget& owner)
    : QWidget(&owner, Qt::Dialog | Qt::WindowDoesNotAcceptFocus) {
    setObjectName("logViewer");
    setWindowTitle(tr("Visualizador de Eventos do Sistema"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    list->setObjectName("logLines");
    list->setAccessibleName(windowTitle());
    list->setModel(lines);
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideNone);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* clearButton = new QPushButton(tr("Limpar"));
    clearButton->setObjectName("clearLog");
    connect(clearButton, &QPushButton::clicked, this, &CLoggingViewerDlg::Clear);

    auto* rows = new QVBoxLayout(this);
    rows->addWidget(list, 1);
    rows->addWidget(clearButton, 0, Qt::AlignRight);
    timer.setSingleShot(true);
    timer.setInterval(kPeriod);
    connect(&timer, &QTimer::timeout, this, &CLoggingViewerDlg::ShowWaiting);
}

bool CLoggingViewerDlg::Show() {
    // Only the first time: later it stands where the person put it.
    if (!testAttribute(Qt::WA_Moved)) {
        const auto area = parentWidget()->screen()->availableGeometry();
        resize(FirstSize().boundedTo(area.size()));
        move(area.topLeft());
    }
    show();
    return true;
}

QSize CLoggingViewerDlg::FirstSize() const {
    const QFontMetrics measures(list->font());
    return {measures.horizontalAdvance(QString(kListWidth, 'n')), measures.lineSpacing() * kListHeight};
}

void CLoggingViewerDlg::AddLine(TextView line) {
    if (waiting.size() == LogLines::kMostLines)
        waiting.pop_front();
    waiting.emplace_back(line);
    if (!timer.isActive())
        timer.start();
}

void CLoggingViewerDlg::ShowWaiting() {
    QElapsedTimer elapsed;
    elapsed.start();
    const QFontMetrics measures(list->font());
    QStringList portion;
    while (!waiting.empty() && elapsed.elapsed() < kPortion) {
        portion.append(ToQString(waiting.front()));
        widest = std::max(widest, measures.horizontalAdvance(portion.back()));
        waiting.pop_front();
    }
    lines->Append(portion, {widest + measures.averageCharWidth(), measures.lineSpacing()});
    list->scrollTo(lines->index(lines->rowCount() - 1), QAbstractItemView::PositionAtTop);
    if (!waiting.empty())
        timer.start();
}

void CLoggingViewerDlg::Close() {
    hide();
    Clear();
}

void CLoggingViewerDlg::Clear() {
    timer.stop();
    waiting.clear();
    lines->Clear();
    widest = 0;
}

} // namespace ondrilo
