#include "dialogs/options/CTimeAwarePPage.h"

#include "dialogs/options/TimeSpanList.h"

#include <QGridLayout>

namespace ondrilo {

CTimeAwarePPage::CTimeAwarePPage(const OptionsPageContext& context)
    : OptionsPage(context, "timePage", tr("Adaptação ao Contexto Temporal")) {
    AddGroup(tr("Adaptação")).Add(option::ADAPTACAO_TEMPO);

    const std::pair<TextOption, QString> days[] = {
        {option::INTERVALOS_TEMPO_DOMINGO, tr("Domingo")},
        {option::INTERVALOS_TEMPO_SEGUNDA_FEIRA, tr("Segunda-feira")},
        {option::INTERVALOS_TEMPO_TERCA_FEIRA, tr("Terça-feira")},
        {option::INTERVALOS_TEMPO_QUARTA_FEIRA, tr("Quarta-feira")},
        {option::INTERVALOS_TEMPO_QUINTA_FEIRA, tr("Quinta-feira")},
        {option::INTERVALOS_TEMPO_SEXTA_FEIRA, tr("Sexta-feira")},
        {option::INTERVALOS_TEMPO_SABADO, tr("Sábado")},
    };
    constexpr int columns = 2;
    auto* week = new QWidget;
    auto* grid = new QGridLayout(week);
    grid->setContentsMargins({});
    int place = 0;
    for (const auto& [option, day] : days) {
        grid->addWidget(new TimeSpanList(day, option, context.draft, context.host), place / columns,
                        place % columns);
        ++place;
    }
    AddWidget(week);
}

} // namespace ondrilo
