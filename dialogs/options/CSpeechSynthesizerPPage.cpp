#include "dialogs/options/CSpeechSynthesizerPPage.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace ondrilo {

CSpeechSynthesizerPPage::CSpeechSynthesizerPPage(const OptionsPageContext& context)
    : OptionsPage(context, "speechPage", tr("Síntese de Fala")) {

    auto& voice = AddGroup(tr("Voz"));
    auto voices = context.sources.VoiceNames();
    voices.insert(voices.begin(), "Nenhum");
    voice.AddChoice(option::NOME_SINTETIZADOR_FALA, voices);
    voice.AddWide(CreateButtons());

    auto& keys = AddGroup(tr("Ouvir as Teclas"));
    keys.Add(option::OUVIR_ANTES_COMPLETAR);
    keys.Add(option::OUVIR_DEPOIS_COMPLETAR);
    keys.Add(option::OUVIR_COM_RATO_SOBRE, tr(" vezes"));

    auto& writing = AddGroup(tr("Ouvir a Escrita"));
    writing.Add(option::OUVIR_LETRAS);
    writing.Add(option::OUVIR_PALAVRAS);
    writing.Add(option::OUVIR_FRASES);

    auto& special = AddGroup(tr("Teclas de Síntese"));
    special.AddChoice(option::TECLA_SINTESE_PALAVRA, context.sources.KeyNames());
    special.AddChoice(option::TECLA_SINTESE_FRASE, context.sources.KeyNames());
}

/// Disabled as long as no voice can be heard.
QWidget* CSpeechSynthesizerPPage::CreateButtons() {
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins({});
    const auto add = [&](const char* objectName, const QString& text) {
        auto* button = new QPushButton(text);
        button->setObjectName(objectName);
        button->setEnabled(false);
        row->addWidget(button);
    };
    add("hearVoice", tr("Ouvir a Voz"));
    add("speechExceptions", tr("Configurar Excepções na Síntese de Fala..."));
    row->addStretch();
    return buttons;
}

} // namespace ondrilo
