#include "dialogs/options/CSpeechSynthesizerPPage.h"

#include "dialogs/CSpeechSynthesizerExceptionsDlg.h"
#include "platform/qt/QtConversion.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace ondrilo {
namespace {

QPushButton* CreateButton(const char* objectName, const QString& text) {
    auto* button = new QPushButton(text);
    button->setObjectName(objectName);
    return button;
}

QWidget* InARow(std::initializer_list<QPushButton*> buttons) {
    auto* field = new QWidget;
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins({});
    for (auto* button : buttons)
        row->addWidget(button);
    row->addStretch();
    return field;
}

} // namespace

CSpeechSynthesizerPPage::CSpeechSynthesizerPPage(const OptionsPageContext& context)
    : OptionsPage(context, "speechPage", tr("Síntese de Fala")),
      voice(new VoiceChooser(context.sources.Speech(), ToQString(kNoVoice), kNoVoice,
                             context.draft.Properties().Get(option::NOME_SINTETIZADOR_FALA))),
      cueVoice(new VoiceChooser(context.sources.Speech(), tr("A mesma voz"), {},
                                context.draft.Access().CueVoice())) {
    AddVoice();
    AddCueVoice();

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

void CSpeechSynthesizerPPage::AddVoice() {
    voice->setObjectName(ToQString(RowOf(option::NOME_SINTETIZADOR_FALA).key));
    connect(voice, &VoiceChooser::VoiceChosen, this,
            [this](const Text& name) { context.draft.Set(option::NOME_SINTETIZADOR_FALA, name); });
    auto* waiting = new QLabel(tr("À espera das vozes do serviço de fala..."));
    waiting->setHidden(voice->KnowsVoices());
    connect(voice, &VoiceChooser::VoicesKnown, waiting, &QWidget::hide);
    auto* hear = CreateButton("hearVoice", tr("Ouvir a Voz"));
    connect(hear, &QPushButton::clicked, this, &CSpeechSynthesizerPPage::Hear);
    auto* exceptions = CreateButton("speechExceptions", tr("Configurar Excepções na Síntese de Fala..."));
    connect(exceptions, &QPushButton::clicked, this, &CSpeechSynthesizerPPage::EditExceptions);

    auto& group = AddGroup(tr("Voz"));
    group.AddRow(ToQString(RowOf(option::NOME_SINTETIZADOR_FALA).label), voice);
    group.AddWide(waiting);
    group.Add(access_option::VELOCIDADE_FALA);
    group.Add(access_option::TOM_FALA);
    group.Add(access_option::VOLUME_FALA);
    group.AddNote(tr("Velocidade, tom e volume vão de -100 a 100."));
    group.AddWide(InARow({hear, exceptions}));
}

void CSpeechSynthesizerPPage::AddCueVoice() {
    cueVoice->setObjectName(ToQString(kCueVoiceKey));
    connect(cueVoice, &VoiceChooser::VoiceChosen, this,
            [this](const Text& name) { context.draft.SetCueVoice(name); });
    auto* hear = CreateButton("hearCue", tr("Ouvir uma Pista"));
    connect(hear, &QPushButton::clicked, this, &CSpeechSynthesizerPPage::HearCue);

    auto& group = AddGroup(tr("Pistas do Varrimento"));
    group.AddRow(tr("Voz das Pistas:"), cueVoice);
    group.Add(access_option::VOLUME_PISTAS);
    group.AddNote(tr("As pistas ligam-se na área Varrimento."));
    group.AddWide(InARow({hear}));
}

bool CSpeechSynthesizerPPage::HasVoice() {
    if (voice->Chosen() != kNoVoice)
        return true;
    context.host.boxes.Show("Não se encontra selecionado um sintetizador de falar!"_w);
    return false;
}

void CSpeechSynthesizerPPage::Hear() {
    if (HasVoice())
        context.sources.Speech().Say("Olá! É esta a voz que vai falar por si."_w, voice->Chosen(),
                                     context.draft.Access().Manner());
}

void CSpeechSynthesizerPPage::HearCue() {
    if (HasVoice())
        context.sources.Speech().Say("Linha das palavras",
                                     cueVoice->Chosen().empty() ? voice->Chosen() : cueVoice->Chosen(),
                                     context.draft.Access().CueManner());
}

void CSpeechSynthesizerPPage::EditExceptions() {
    if (!HasVoice())
        return;
    CSpeechSynthesizerExceptionsDlg dialog(context.host, context.sources.Speech(), context.sources.Folder(),
                                           voice->Chosen(), context.draft.Access().Manner());
    (void)dialog.Run();
}

} // namespace ondrilo
