#include "dialogs/CMetricsDlg.h"

#include "platform/qt/QtConversion.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QScrollBar>

namespace ondrilo {
namespace {

/// The least number of rows to be seen.
constexpr int kRows = 20;

} // namespace

CMetricsDlg::CMetricsDlg(const DialogHost& host, const std::vector<Text>& lines)
    : BaseDialog(host, DialogNumber::Metrics, "metricsDialog", tr("Métricas do Sistema")) {
    rows->setObjectName("metrics");
    rows->setAccessibleName(windowTitle());
    rows->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const Text& line : lines)
        rows->addItem(ToQString(line));
    rows->setCurrentRow(0, QItemSelectionModel::NoUpdate);
    const int scrollBar = rows->verticalScrollBar()->sizeHint().width() + 2 * rows->frameWidth();
    rows->setMinimumSize(rows->sizeHintForColumn(0) + scrollBar, rows->fontMetrics().lineSpacing() * kRows);
    AddCopying();

    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->addWidget(rows);
    SetContent(content);
    delete Buttons().button(QDialogButtonBox::Cancel);
    rows->setFocus();
}

void CMetricsDlg::AddCopying() {
    auto* copy = new QAction(tr("&Copiar"), rows);
    copy->setObjectName("copyMetrics");
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &CMetricsDlg::CopyRows);
    rows->addAction(copy);
    rows->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CMetricsDlg::CopyRows() const {
    QStringList lines;
    const bool all = rows->selectedItems().isEmpty();
    for (int row = 0; row < rows->count(); ++row)
        if (all || rows->item(row)->isSelected())
            lines.append(rows->item(row)->text());
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

} // namespace ondrilo
