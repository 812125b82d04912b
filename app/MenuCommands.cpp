#include "app/MenuCommands.h"

#include <algorithm>
#include <iterator>

namespace ondrilo {
namespace {

constexpr bool kGuarded = true, kFree = false;
constexpr bool kNotInEditing = true, kAlways = false;
constexpr bool kAvailable = true, kNotYet = false;

// The prompts of the two entries that learn a text have always been each other's.
constexpr MenuCommand kCommands[] = {
    {menu::ExportProfiles, kFree, kAlways, kNotYet,
     "Exportar perfis de utilizador para uma unidade de disco."},
    {menu::ExportKeyboards, kFree, kAlways, kNotYet,
     "Exportar teclados de ecrã para uma unidade de disco."_w},
    {menu::ExportGalleries, kGuarded, kAlways, kNotYet,
     "Exportar uma ou mais galerias de pictogramas para uma unidade de disco. "},
    {menu::ExportAll, kFree, kAlways, kNotYet, "Exportar todos os dados para uma unidade de disco."},
    {menu::ImportProfiles, kGuarded, kNotInEditing, kNotYet,
     "Importar os perfis de utilizador de uma unidade de disco."},
    {menu::ImportKeyboards, kGuarded, kNotInEditing, kNotYet,
     "Importar os teclados de ecrã  de uma unidade de disco"_w},
    {menu::ImportGalleries, kFree, kAlways, kNotYet,
     "Importar galerias de pictogramas de uma unidade de disco."},
    {menu::ImportAll, kGuarded, kNotInEditing, kNotYet, "Importar todos os dados de uma unidade de disco."},
    {menu::ImportPictures, kGuarded, kAlways, kNotYet, "Importar uma pasta que contem pictogramas."},
    {menu::DisableMenu, kFree, kAlways, kAvailable,
     "Desativar o menu até ao próximo arranque ou até se carregar em Control e Shift."_w},
    {menu::HideMenuAndBars, kFree, kAlways, kAvailable,
     "Esconder o título, o menu e a barra de estado da janela."_w},
    {menu::SystemOptions, kFree, kAlways, kAvailable, "Configurar as opções gerais do sistema."_w},
    {menu::Quit, kFree, kAlways, kAvailable, "Sair do programa."},

    {menu::Undo, kFree, kAlways, kAvailable, "Anular a última alteração do texto."_w},
    {menu::Cut, kFree, kAlways, kAvailable, "Cortar o texto seleccionado."},
    {menu::Copy, kFree, kAlways, kAvailable, "Copiar o texto seleccionado."},
    {menu::Paste, kFree, kAlways, kAvailable, "Colar o texto da área de transferência."_w},

    {menu::NewProfile, kGuarded, kNotInEditing, kAvailable, "Criar um novo perfil de utilizador."},
    {menu::OpenProfile, kFree, kNotInEditing, kAvailable, "Abrir um perfil de utilizador."},
    {menu::RemoveProfile, kFree, kAlways, kAvailable, "Remover um perfil de utilizador."},
    {menu::ProfileOptions, kGuarded, kNotInEditing, kAvailable,
     "Configurar as opções específicas do perfil de utilizador activo."_w},
    {menu::CopyProfileOptions, kFree, kNotInEditing, kAvailable,
     "Copiar as opções de outro perfil para o perfil de utilizador activo."_w},
    {menu::Words, kGuarded, kAlways, kAvailable,
     "Visualizar ou alterar o dicionário de palavras e pictogramas."_w},
    {menu::Sentences, kGuarded, kAlways, kAvailable,
     "Visualizar ou alterar o dicionário de frases e sequências de palavras e pictogramas."_w},
    {menu::Abbreviations, kGuarded, kAlways, kAvailable,
     "Visualizar ou alterar as abreviaturas do utilizador."},
    {menu::LearnFromFile, kGuarded, kAlways, kAvailable,
     "Adaptar o dicionário de palavras com base num texto da área de transferência."_w},
    {menu::LearnFromClipboard, kGuarded, kAlways, kAvailable,
     "Adaptar o dicionário de palavras com base num ficheiro de texto."_w},

    {menu::NewKeyboard, kGuarded, kNotInEditing, kNotYet, "Criar um novo teclado de ecrã."_w},
    {menu::NewKeyboardFromModel, kGuarded, kNotInEditing, kNotYet,
     "Criar um novo teclado de ecrã utilizando um outro como base."_w},
    {menu::OpenKeyboard, kFree, kNotInEditing, kNotYet, "Abrir um teclado de ecrã."_w},
    {menu::RemoveKeyboard, kGuarded, kNotInEditing, kNotYet,
     "Remover um teclado de ecrã existente no sistema."_w},
    {menu::EditKeyboard, kGuarded, kAlways, kNotYet, "Editar o teclado de ecrã activo."_w},
    {menu::SaveKeyboard, kGuarded, kAlways, kNotYet, "Guardar o teclado de ecrã em edição."_w},
    {menu::EndEditing, kGuarded, kAlways, kNotYet, "Terminar a edição do teclado."_w},
    {menu::KeyboardOptions, kGuarded, kAlways, kNotYet, "Configurar opções específicas do teclado."_w},
    {menu::Galleries, kGuarded, kAlways, kNotYet,
     "Visualizar, adicionar e remover pictogramas e galerias de pictogramas ao sistema."},

    {menu::StartCooperation, kFree, kNotInEditing, kNotYet,
     "Iniciar uma sessão de comunicação cooperativa."_w},
    {menu::EndCooperation, kFree, kAlways, kNotYet, "Terminar a sessão de comunicação cooperativa."_w},
    {menu::ViewLog, kFree, kAlways, kAvailable, "Visualizar os eventos à medida que são registados."_w},
    {menu::CopyLogs, kFree, kAlways, kAvailable,
     "Copiar os registos de acções de um perfil de utilizador para outra pasta."_w},
    {menu::RemoveLogs, kGuarded, kNotInEditing, kAvailable,
     "Limpar todos os registos de acções associados a um determinado perfil de utilizador."_w},
    {menu::RestartMetrics, kGuarded, kAlways, kAvailable,
     "Reiniciar a monitorização do sistema através da criação de um novo ficheiro de registo."_w},
    {menu::Metrics, kFree, kAlways, kAvailable, "Ver as métricas do utilizador."_w},
    {menu::RecordFeedback, kFree, kAlways, kNotYet, "Registar uma apreciação ou sugestão do configurador."_w},
    {menu::CopyRecords, kFree, kAlways, kNotYet, "Copiar os registos do configurador para outra pasta."},
    {menu::ClearRecords, kGuarded, kAlways, kNotYet,
     "Limpar todas as apreciações e sugestões realizadas pelo configurador."_w},
    {menu::SimulateWords, kFree, kAlways, kAvailable,
     "Simular a escrita de um texto com a predição de palavras."_w},
    {menu::SimulateText, kFree, kAlways, kNotYet, "Simular a escrita de um texto num teclado de ecrã."_w},
    {menu::SimulatePictograms, kFree, kAlways, kNotYet,
     "Simular a escrita com pictogramas num teclado de ecrã."_w},
    {menu::About, kFree, kAlways, kAvailable, "Ver a versão do programa."_w},
};

} // namespace

const MenuCommand* FindMenuCommand(int number) {
    const auto* found =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [number](const MenuCommand& command) { return command.number == number; });
    return found == std::end(kCommands) ? nullptr : found;
}

} // namespace ondrilo
