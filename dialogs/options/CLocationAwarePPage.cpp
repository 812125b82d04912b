#include "dialogs/options/CLocationAwarePPage.h"

#include <QPushButton>

namespace ondrilo {
namespace {

QPushButton* CreateButton(const char* objectName, const QString& text, bool enabled) {
    auto* button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setEnabled(enabled);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

} // namespace

CLocationAwarePPage::CLocationAwarePPage(const OptionsPageContext& context)
    : OptionsPage(context, "placePage", tr("Adapação ao Contexto Físico e Interlocutores")) {

    auto& adaptation = AddGroup(tr("Adaptação"));
    adaptation.Add(option::ADAPTACAO_LOCAL_FISICO);

    auto& place = AddGroup(tr("Local"));
    place.Add(option::LATITUDE_LOCAL_FISICO);
    place.Add(option::LONGITUDE_LOCAL_FISICO);
    place.Add(option::RAIO_LOCAL_FISICO, tr(" metros"));
    place.AddNote(
        tr("Latitude e longitude em graus; a sul do equador e a oeste de Greenwich são negativas."));
    // Disabled as long as no source tells the position.
    place.AddWide(CreateButton("currentPosition", tr("&Posição Actual"), false));

    auto& tags = AddGroup(tr("Etiquetas Bluetooth"));
    tagList = tags.Add(option::IDENTIFICADOR_ETIQUETA_BLUETOOTH);
    tags.AddNote(tr("Entre duas etiquetas fica um espaço."));
    auto* clear = CreateButton("clearTags", tr("&Limpar Etiquetas"), true);
    connect(clear, &QPushButton::clicked, this, [this] { ClearTags(); });
    // Disabled as long as there is no search.
    tags.AddWide(CreateButton("addTag", tr("Adicionar &Etiqueta..."), false));
    tags.AddWide(clear);
}

void CLocationAwarePPage::ClearTags() {
    const auto question = "Quer mesmo apagar limpar as etiquetas bluetooth associadas a este perfil?";
    if (context.host.boxes.AskYesNo(question) == Answer::Yes)
        tagList->clear();
}

} // namespace ondrilo
