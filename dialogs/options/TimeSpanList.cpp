#include "dialogs/options/TimeSpanList.h"

#include "dialogs/SelectedRow.h"
#include "dialogs/options/CNewTimeSpanDlg.h"
#include "platform/qt/QtConversion.h"
#include "text/Splitter.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace ondrilo {
namespace {

constexpr int kRows = 3; // that a list shows at once

} // namespace

TimeSpanList::TimeSpanList(const QString& day, TextOption option, OptionsDraft& draft, const DialogHost& host)
    : QGroupBox(day), option(option), draft(draft), host(host) {
    list->setObjectName(ToQString(RowOf(option).key));
    list->setAccessibleName(tr("Horários de %1").arg(day));
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    list->setFixedHeight(kRows * (list->fontMetrics().height() + 4) + 2 * list->frameWidth());
    list->setMinimumWidth(list->fontMetrics().horizontalAdvance("00:00-00:00") +
                          2 * list->fontMetrics().height());
    for (const auto& span : Split(draft.Properties().Get(option), ";", kAllTokens))
        list->addItem(ToQString(span));
    auto* row = new QHBoxLayout(this);
    row->addWidget(list, 1);
    row->addWidget(CreateButtons(day));
}

QWidget* TimeSpanList::CreateButtons(const QString& day) {
    auto* buttons = new QWidget;
    auto* column = new QVBoxLayout(buttons);
    column->setContentsMargins({});
    const auto add = [&](const QString& text, const QString& prefix, void (TimeSpanList::*act)()) {
        auto* button = new QPushButton(text);
        button->setObjectName(prefix + list->objectName());
        button->setAccessibleName(QString("%1 %2").arg(text, day));
        connect(button, &QPushButton::clicked, this, act);
        column->addWidget(button);
    };
    add(tr("Adicionar..."), "add_", &TimeSpanList::Add);
    add(tr("Remover"), "remove_", &TimeSpanList::Remove);
    column->addStretch();
    return buttons;
}

void TimeSpanList::Add() {
    CNewTimeSpanDlg dialog(host);
    if (!dialog.Run())
        return;
    list->addItem(dialog.TimeSpan());
    list->setCurrentRow(list->count() - 1);
    Store();
}

void TimeSpanList::Remove() {
    if (list->count() == 0)
        return host.boxes.Show("Lista vazia!");
    const int row = SelectedRow(*list);
    if (row < 0)
        return host.boxes.Show("Seleccione primeiro um intervalo de tempo.");
    if (host.boxes.AskYesNo("Quer mesmo apagar este intervalo de tempo?") != Answer::Yes)
        return;
    delete list->takeItem(row);
    list->setCurrentRow(std::max(row - 1, 0));
    Store();
}

void TimeSpanList::Store() {
    Tokens spans;
    for (int row = 0; row < list->count(); ++row)
        spans.push_back(FromQString(list->item(row)->text()));
    draft.Set(option, Join(spans, ";"));
}

} // namespace ondrilo
