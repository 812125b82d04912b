#include "dialogs/options/CDictionaryPPage.h"

#include "platform/qt/QtConversion.h"

#include <QGridLayout>
#include <QLabel>

#include <optional>

namespace ondrilo {
namespace {

struct Factor {
    IntegerOption general;
    std::optional<IntegerOption> user;
};

constexpr Factor kFactors[] = {
    {option::COEFICIENTE_FREQUENCIA_PALAVRA, option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR},
    {option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS, option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR},
    {option::COEFICIENTE_CLASSE_PALAVRA, {}},
    {option::COEFICIENTE_GENERO_PALAVRA, {}},
    {option::COEFICIENTE_NUMERO_PALAVRA, {}},
};

} // namespace

CDictionaryPPage::CDictionaryPPage(const OptionsPageContext& context)
    : OptionsPage(context, "dictionaryPage", tr("Dicionário")) {

    AddWidget(CreateWeights());
    auto& vocabulary = AddGroup(tr("Vocabulário"));
    vocabulary.Add(option::ADAPTACAO_UTILIZADOR);
    vocabulary.Add(option::MANTER_DICIONARIO_MEMORIA);
}

QWidget* CDictionaryPPage::CreateWeights() {
    auto* box = new QGroupBox(tr("Peso de Cada Factor nos Dicionários"));
    auto* grid = new QGridLayout(box);
    const QString columns[] = {tr("Geral"), tr("Do Utilizador")};
    grid->addWidget(new QLabel(columns[0]), 0, 1);
    grid->addWidget(new QLabel(columns[1]), 0, 2);
    for (const auto& [general, user] : kFactors) {
        const auto label = ToQString(RowOf(general).label);
        const int row = grid->rowCount();
        const auto add = [&](IntegerOption option, int column) {
            auto* field = fields.Create(option, tr(" %"));
            NameField(*field, QString("%1, %2").arg(columns[column - 1], label));
            grid->addWidget(field, row, column, Qt::AlignLeft);
        };
        grid->addWidget(new QLabel(label), row, 0);
        add(general, 1);
        if (user)
            add(*user, 2);
    }
    grid->setColumnStretch(2, 1);
    return box;
}

} // namespace ondrilo
