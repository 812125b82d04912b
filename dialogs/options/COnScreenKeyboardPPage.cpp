#include "dialogs/options/COnScreenKeyboardPPage.h"

namespace ondrilo {

COnScreenKeyboardPPage::COnScreenKeyboardPPage(const OptionsPageContext& context)
    : OptionsPage(context, "keyboardPage", tr("Teclado de Ecrã")) {

    auto& keyboard = AddGroup(tr("Teclado"));
    keyboard.AddChoice(option::NOME_TECLADO, context.sources.KeyboardNames());
    keyboard.Add(option::SOM_TECLAS);

    auto& heights = AddGroup(tr("Altura das Teclas"));
    heights.Add(option::ALTURA_TECLAS, tr(" pixels"));
    heights.Add(option::ALTURA_TECLAS_IMAGENS, tr(" pixels"));
    heights.Add(option::ALTURA_TECLAS_PREDICAO_FRASES, tr(" pixels"));

    auto& gaps = AddGroup(tr("Espaço Entre"));
    gaps.Add(option::ESPACO_ENTRE_LINHAS, tr(" pixels"));
    gaps.Add(option::ESPACO_ENTRE_GRUPOS, tr(" pixels"));
    gaps.Add(option::ESPACO_ENTRE_TECLAS, tr(" pixels"));

    auto& equal = AddGroup(tr("Tornar Igual"));
    equal.Add(option::AJUSTAR_COMPRIMENTO_LINHAS, tr("Igual em todas"));
    equal.Add(option::AJUSTAR_ALTURA_LINHAS, tr("Igual em todas"));

    auto& editor = AddGroup(tr("Editor de Texto"));
    editor.Add(option::PROCESSADOR_TEXTO_INTERNO);
    editor.Add(option::ALTURA_EDITOR_MENSAGENS, tr(" pixels"));
    editor.Add(option::AJUSTA_COMPRIMENTO_EDITOR_MENSAGENS);
}

} // namespace ondrilo
