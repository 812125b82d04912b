#include "dialogs/options/CColorsPPage.h"

#include "dialogs/FileChooser.h"
#include "dialogs/options/KeyPreview.h"
#include "platform/qt/QtConversion.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPushButton>
#include <QValidator>

namespace ondrilo {
namespace {

/// Fonts whose names a profile can hold.
std::vector<Text> FontNames() {
    std::vector<Text> names;
    for (const auto& family : QFontDatabase::families())
        if (const auto name = FromQString(family);
            ToQString(name) == family && !QFontDatabase::isPrivateFamily(family))
            names.push_back(name);
    return names;
}

} // namespace

CColorsPPage::CColorsPPage(const OptionsPageContext& context)
    : OptionsPage(context, "colorsPage", tr("Cores e Tipo de Letra")) {
    AddFixed(new KeyPreview(context.draft));
    AddLetters();
    AddKeyFill();
    AddWindowFill();
}

void CColorsPPage::AddLetters() {
    auto& letters = AddGroup(tr("Texto das Teclas"));
    letters.AddChoice(option::TIPO_LETRA, FontNames());
    letters.Add(option::TAMANHO_LETRAS_PALAVRAS_PREDITAS, tr(" pontos"));
    letters.Add(option::COR_LETRAS);
}

void CColorsPPage::AddKeyFill() {
    auto& keys = AddGroup(tr("Fundo das Teclas"));
    keys.AddRadios(option::TIPO_PREENCHIMENTO_TECLA, tr("Preenchimento:"),
                   {{0, tr("Sólido")}, {1, tr("Degradê")}});
    keys.Add(option::COR_FUNDO);
    keys.Add(option::COR_FUNDO_TECLAS_PREDICAO);
    keys.Add(option::COR_FUNDO2);
    keys.Add(option::ANGULO_DEGRADE_TECLA, tr("°"));
}

void CColorsPPage::AddWindowFill() {
    auto& window = AddGroup(tr("Fundo da Janela"));
    window.AddRadios(option::TIPO_PREENCHIMENTO_JANELA, tr("Preenchimento:"),
                     {{0, tr("Sólido")}, {1, tr("Degradê")}});
    window.Add(option::COR_FUNDO_JANELA, {}, tr("Cor de Fundo 1:"));
    window.Add(option::COR_FUNDO_JANELA2, {}, tr("Cor de Fundo 2:"));
    window.Add(option::ANGULO_DEGRADE_JANELA, tr("°"));
    window.AddRow(ToQString(RowOf(option::IMAGEM_FUNDO).label), CreatePictureChooser());
}

QWidget* CColorsPPage::CreatePictureChooser() {
    auto* chooser = new QWidget;
    auto* line = fields.Create(option::IMAGEM_FUNDO);
    NameField(*line, ToQString(RowOf(option::IMAGEM_FUNDO).label));
    line->setClearButtonEnabled(true);
    auto* choose = new QPushButton(tr("Escolher &Imagem..."));
    choose->setObjectName("choosePicture");
    connect(choose, &QPushButton::clicked, this, [this, line] { ChoosePicture(*line); });
    auto* row = new QHBoxLayout(chooser);
    row->setContentsMargins({});
    row->addWidget(line, 1);
    row->addWidget(choose);
    chooser->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return chooser;
}

void CColorsPPage::ChoosePicture(QLineEdit& line) {
    const auto file = AskForFile(context.host.desktop, tr("Escolher Imagem de Fundo"), tr("Imagens (*.bmp)"));
    if (!file)
        return;
    auto path = QString::fromStdString(file->string());
    int position = 0;
    if (line.validator()->validate(path, position) == QValidator::Acceptable)
        line.setText(path);
    else
        context.host.boxes.Show("O perfil não pode guardar o caminho desta imagem: é demasiado longo ou tem "
                                "letras de outro alfabeto."_w);
}

} // namespace ondrilo
