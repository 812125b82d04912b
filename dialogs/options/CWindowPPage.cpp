#include "dialogs/options/CWindowPPage.h"

#include "platform/qt/QtConversion.h"

#include <QHBoxLayout>
#include <QLabel>

namespace ondrilo {

CWindowPPage::CWindowPPage(const OptionsPageContext& context)
    : OptionsPage(context, "windowPage", tr("Janela")) {

    auto& place = AddGroup(tr("Posição"));
    place.AddRow(ToQString(RowOf(option::POSICAO_INICIAL_JANELA_X).label), CreateCoordinates());
    place.Add(option::CENTRAR_JANELA, tr("Centrar"));
    place.Add(option::CENTRA_ELEMENTOS_JANELA, tr("Centrar"));

    auto& start = AddGroup(tr("Início"));
    start.Add(option::INICIAR_JANELA_MINIMIZADA);
    start.Add(option::INICIAR_JANELA_MAXIMIZADA);

    auto& caret = AddGroup(tr("Cursor de Texto"));
    caret.Add(option::REPOSICIONAR_JANELA);
    caret.Add(option::PERSEGUIR_CURSOR_TEXTO);

    auto& bars = AddGroup(tr("Menu e Barras"));
    bars.Add(option::MOSTRAR_BARRAS_JANELA);
    bars.Add(option::BLOQUEAR_MENU);

    // Nothing reads them, but they are the profile's and travel with it.
    auto& size = AddGroup(tr("Tamanho"));
    size.Add(option::LARGURA_JANELA, tr(" pixels"), tr("Largura da Janela:"));
    size.Add(option::ALTURA_JANELA, tr(" pixels"), tr("Altura da Janela:"));
    size.AddNote(tr("A janela ajusta-se por si ao teclado e ao editor; estes dois valores ficam apenas "
                    "guardados no perfil."));
}

QWidget* CWindowPPage::CreateCoordinates() {
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins({});
    const auto add = [&](IntegerOption option, const QString& label, const QString& name) {
        auto* field = fields.Create(option, tr(" pixels"));
        NameField(*field, name);
        row->addWidget(new QLabel(label));
        row->addWidget(field);
    };
    add(option::POSICAO_INICIAL_JANELA_X, tr("X:"), tr("Coordenada X Inicial da Janela"));
    add(option::POSICAO_INICIAL_JANELA_Y, tr("Y:"), tr("Coordenada Y Inicial da Janela"));
    return both;
}

} // namespace ondrilo
