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
    {menu::ExportProfiles, "Exportar perfis de utilizador para uma unidade de disco.", kFree, kAlways,
     kNotYet},
    {menu::ExportKeyboards, "Exportar teclados de ecrã para uma unidade de disco."_w, kFree, kAlways,
     kNotYet},
    {menu::ExportGalleries, "Exportar uma ou mais galerias de pictogramas para uma unidade de disco. ",
     kGuarded, kAlways, kNotYet},
    {menu::ExportAll, "Exportar todos os dados para uma unidade de disco.", kFree, kAlways, kNotYet},
    {menu::ImportProfiles, "Importar os perfis de utilizador de uma unidade de disco.", kGuarded,
     kNotInEditing, kNotYet},
    {menu::ImportKeyboards, "Importar os teclados de ecrã  de uma unidade de disco"_w, kGuarded,
     kNotInEditing, kNotYet},
    {menu::ImportGalleries, "Importar galerias de pictogramas de uma unidade de disco.", kFree, kAlways,
     kNotYet},
    {menu::ImportAll, "Importar todos os dados de uma unidade de disco.", kGuarded, kNotInEditing, kNotYet},
    {menu::ImportPictures, "Importar uma pasta que contem pictogramas.", kGuarded, kAlways, kNotYet},
    {menu::DisableMenu, "Desativar o menu até ao próximo arranque ou até se carregar em Control e Shift."_w,
     kFree, kAlways, kAvailable},
    {menu::HideMenuAndBars, "Esconder o título, o menu e a barra de estado da janela."_w, kFree, kAlways,
     kAvailable},
    {menu::SystemOptions, "Configurar as opções gerais do sistema."_w, kFree, kAlways, kAvailable},
    {menu::Quit, "Sair do programa.", kFree, kAlways, kAvailable},

    {menu::Undo, "Anular a última alteração do texto."_w, kFree, kAlways, kAvailable},
    {menu::Cut, "Cortar o texto seleccionado.", kFree, kAlways, kAvailable},
    {menu::Copy, "Copiar o texto seleccionado.", kFree, kAlways, kAvailable},
    {menu::Paste, "Colar o texto da área de transferência."_w, kFree, kAlways, kAvailable},

    {menu::NewProfile, "Criar um novo perfil de utilizador.", kGuarded, kNotInEditing, kAvailable},
    {menu::OpenProfile, "Abrir um perfil de utilizador.", kFree, kNotInEditing, kAvailable},
    {menu::RemoveProfile, "Remover um perfil de utilizador.", kFree, kAlways, kAvailable},
    {menu::ProfileOptions, "Configurar as opções específicas do perfil de utilizador activo."_w, kGuarded,
     kNotInEditing, kAvailable},
    {menu::CopyProfileOptions, "Copiar as opções de outro perfil para o perfil de utilizador activo."_w,
     kFree, kNotInEditing, kAvailable},
    {menu::Words, "Visualizar ou alterar o dicionário de palavras e pictogramas."_w, kGuarded, kAlways,
     kAvailable},
    {menu::Sentences,
     "Visualizar ou alterar o dicionário de frases e sequências de palavras e pictogramas."_w, kGuarded,
     kAlways, kAvailable},
    {menu::Abbreviations, "Visualizar ou alterar as abreviaturas do utilizador.", kGuarded, kAlways,
     kAvailable},
    {menu::LearnFromFile, "Adaptar o dicionário de palavras com base num texto da área de transferência."_w,
     kGuarded, kAlways, kAvailable},
    {menu::LearnFromClipboard, "Adaptar o dicionário de palavras com base num ficheiro de texto."_w, kGuarded,
     kAlways, kAvailable},

    {menu::NewKeyboard, "Criar um novo teclado de ecrã."_w, kGuarded, kNotInEditing, kNotYet},
    {menu::NewKeyboardFromModel, "Criar um novo teclado de ecrã utilizando um outro como base."_w, kGuarded,
     kNotInEditing, kNotYet},
    {menu::OpenKeyboard, "Abrir um teclado de ecrã."_w, kFree, kNotInEditing, kNotYet},
    {menu::RemoveKeyboard, "Remover um teclado de ecrã existente no sistema."_w, kGuarded, kNotInEditing,
     kNotYet},
    {menu::EditKeyboard, "Editar o teclado de ecrã activo."_w, kGuarded, kAlways, kNotYet},
    {menu::SaveKeyboard, "Guardar o teclado de ecrã em edição."_w, kGuarded, kAlways, kNotYet},
    {menu::EndEditing, "Terminar a edição do teclado."_w, kGuarded, kAlways, kNotYet},
    {menu::KeyboardOptions, "Configurar opções específicas do teclado."_w, kGuarded, kAlways, kNotYet},
    {menu::Galleries, "Visualizar, adicionar e remover pictogramas e galerias de pictogramas ao sistema.",
     kGuarded, kAlways, kNotYet},

    {menu::StartCooperation, "Iniciar uma sessão de comunicação cooperativa."_w, kFree, kNotInEditing,
     kNotYet},
    {menu::EndCooperation, "Terminar a sessão de comunicação cooperativa."_w, kFree, kAlways, kNotYet},
    {menu::ViewLog, "Visualizar os eventos à medida que são registados."_w, kFree, kAlways, kAvailable},
    {menu::CopyLogs, "Copiar os registos de acções de um perfil de utilizador para outra pasta."_w, kFree,
     kAlways, kAvailable},
    {menu::RemoveLogs,
     "Limpar todos os registos de acções associados a um determinado perfil de utilizador."_w, kGuarded,
     kNotInEditing, kAvailable},
    {menu::RestartMetrics,
     "Reiniciar a monitorização do sistema através da criação de um novo ficheiro de registo."_w, kGuarded,
     kAlways, kAvailable},
    {menu::Metrics, "Ver as métricas do utilizador."_w, kFree, kAlways, kAvailable},
    {menu::RecordFeedback, "Registar uma apreciação ou sugestão do configurador."_w, kFree, kAlways, kNotYet},
    {menu::CopyRecords, "Copiar os registos do configurador para outra pasta.", kFree, kAlways, kNotYet},
    {menu::ClearRecords, "Limpar todas as apreciações e sugestões realizadas pelo configurador."_w, kGuarded,
     kAlways, kNotYet},
    {menu::SimulateWords, "Simular a escrita de um texto com a predição de palavras."_w, kFree, kAlways,
     kAvailable},
    {menu::SimulateText, "Simular a escrita de um texto num teclado de ecrã."_w, kFree, kAlways, kNotYet},
    {menu::SimulatePictograms, "Simular a escrita com pictogramas num teclado de ecrã."_w, kFree, kAlways,
     kNotYet},
    {menu::About, "Ver a versão do programa."_w, kFree, kAlways, kAvailable},
};

} // namespace

const MenuCommand* FindMenuCommand(int number) {
    const auto* found =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [number](const MenuCommand& command) { return command.number == number; });
    return found == std::end(kCommands) ? nullptr : found;
}

} // namespace ondrilo
