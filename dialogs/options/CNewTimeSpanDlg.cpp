#include "dialogs/options/CNewTimeSpanDlg.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace ondrilo {
namespace {

QSpinBox* CreateNumber(int most, const QString& accessibleName) {
    auto* number = new QSpinBox;
    number->setRange(0, most);
    number->setWrapping(true);
    number->setAccessibleName(accessibleName);
    return number;
}

} // namespace

CNewTimeSpanDlg::CNewTimeSpanDlg(const DialogHost& host)
    : BaseDialog(host, DialogNumber::NewTimeSpan, "newTimeSpanDialog", tr("Adicionar Horário")),
      start(CreateTime(tr("Início"))), end(CreateTime(tr("Fim"))) {
    start.hour->setObjectName("startHour");
    start.minute->setObjectName("startMinute");
    end.hour->setObjectName("endHour");
    end.minute->setObjectName("endMinute");
    auto* content = new QWidget;
    auto* form = new QFormLayout(content);
    form->addRow(tr("Início (horas e minutos):"), CreateRow(start));
    form->addRow(tr("Fim (horas e minutos):"), CreateRow(end));
    SetContent(content);
}

CNewTimeSpanDlg::Time CNewTimeSpanDlg::CreateTime(const QString& name) {
    return {CreateNumber(23, tr("%1, horas").arg(name)), CreateNumber(59, tr("%1, minutos").arg(name))};
}

QWidget* CNewTimeSpanDlg::CreateRow(const Time& time) {
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins({});
    row->addWidget(time.hour);
    row->addWidget(new QLabel(":"));
    row->addWidget(time.minute);
    row->addStretch();
    return both;
}

QString CNewTimeSpanDlg::TimeSpan() const {
    return QString::asprintf("%.2d:%.2d-%.2d:%.2d", start.hour->value(), start.minute->value(),
                             end.hour->value(), end.minute->value());
}

} // namespace ondrilo
