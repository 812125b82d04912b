#include "app/ui/MainMenu.h"

#include "app/MenuCommands.h"
#include "platform/qt/QtConversion.h"

#include <vector>

namespace ondrilo {
namespace {

/// An entry with a number, or a submenu.
struct Entry {
    const char* text;
    int number = 0;
    std::vector<Entry> entries = {};
};

Entry Submenu(const char* text, std::vector<Entry> entries) {
    return {text, 0, std::move(entries)};
}

std::vector<Entry> MainMenu() {
    return {
        Submenu("&Ficheiro", {Submenu("Exportar", {{"Perfis de Utilizador...", menu::ExportProfiles},
                                                   {"Teclados de Ecrã...", menu::ExportKeyboards},
                                                   {"Galerias de Pictogramas...", menu::ExportGalleries},
                                                   {"Todos os Dados...", menu::ExportAll}}),
                              Submenu("Importar", {{"Perfis de Utilizador...", menu::ImportProfiles},
                                                   {"Teclados de Ecrã...", menu::ImportKeyboards},
                                                   {"Galerias de Pictogramas...", menu::ImportGalleries},
                                                   {"Todos os Dados...", menu::ImportAll},
                                                   {"Pasta de Pictogramas...", menu::ImportPictures}}),
                              {"Desativar Menu", menu::DisableMenu},
                              {"Esconder Menu e Barras", menu::HideMenuAndBars},
                              {"Opções Gerais...", menu::SystemOptions},
                              {"Sai&r", menu::Quit}}),
        Submenu("&Editar", {{"A&nular", menu::Undo},
                            {"Cor&tar", menu::Cut},
                            {"&Copiar", menu::Copy},
                            {"C&olar", menu::Paste}}),
        Submenu("&Perfil",
                {{"Novo Perfil...", menu::NewProfile},
                 {"Abrir Perfil...", menu::OpenProfile},
                 {"Remover Perfil...", menu::RemoveProfile},
                 {"&Opções do Perfil...", menu::ProfileOptions},
                 {"Copiar Opções de Outro Perfil...", menu::CopyProfileOptions},
                 Submenu("Dicionário do Perfil",
                         {{"Palavras e Pictogramas...", menu::Words},
                          {"Frases e Sequências de Palavras e Pictogramas...", menu::Sentences},
                          {"Abreviaturas...", menu::Abbreviations}}),
                 Submenu("Adaptar ao Utilizador", {{"A Partir de Ficheiro...", menu::LearnFromFile},
                                                   {"A Partir do Clipboard", menu::LearnFromClipboard}})}),
        Submenu("&Teclado", {Submenu("Novo Teclado", {{"A Criar de Raiz...", menu::NewKeyboard},
                                                      {"A Partir de Modelo...", menu::NewKeyboardFromModel}}),
                             {"Abrir Teclado...", menu::OpenKeyboard},
                             {"Remover Teclado...", menu::RemoveKeyboard},
                             {"Editar Teclado", menu::EditKeyboard},
                             {"Guardar Teclado", menu::SaveKeyboard},
                             {"Terminar Edição", menu::EndEditing},
                             {"Opções do Teclado...", menu::KeyboardOptions},
                             {"Gerir Galerias de Pictogramas...", menu::Galleries}}),
        Submenu(
            "Fe&rramentas",
            {Submenu("Comunicação Cooperativa", {{"Iniciar Sessão...", menu::StartCooperation},
                                                 {"Terminar Sessão", menu::EndCooperation}}),
             Submenu("Registo de Eventos do Sistema", {{"Visualizar Registo de Eventos...", menu::ViewLog},
                                                       {"Copiar Registo de Eventos Para...", menu::CopyLogs},
                                                       {"Limpar Registo de Eventos...", menu::RemoveLogs},
                                                       {"Reiniciar Métricas", menu::RestartMetrics},
                                                       {"Métricas do Utilizador...", menu::Metrics}}),
             Submenu("Registos do Configurador", {{"Efectuar Registo...", menu::RecordFeedback},
                                                  {"Copiar Registo Para...", menu::CopyRecords},
                                                  {"Limpar Registo", menu::ClearRecords}}),
             Submenu("Simuladores",
                     {{"Simulador de Predição de Palavras...", menu::SimulateWords},
                      {"Simulador de Predição de Texto...", menu::SimulateText},
                      {"Simulador de Predição de Pictogramas...", menu::SimulatePictograms}})}),
        Submenu("Aj&uda", {{"&Acerca Tessivor...", menu::About}}),
    };
}

void Fill(QMenu& menu, const std::vector<Entry>& entries, const std::function<void(int)>& chosen) {
    for (const auto& entry : entries) {
        if (!entry.entries.empty()) {
            Fill(*menu.addMenu(entry.text), entry.entries, chosen);
            continue;
        }
        const auto& command = *FindMenuCommand(entry.number);
        auto* action = menu.addAction(entry.text);
        action->setData(entry.number);
        action->setObjectName(QString("command_%1").arg(entry.number));
        action->setStatusTip(ToQString(command.prompt));
        action->setMenuRole(QAction::NoRole);
        action->setEnabled(command.available);
        QObject::connect(action, &QAction::triggered, action,
                         [chosen, number = entry.number] { chosen(number); });
    }
}

} // namespace

void FillMainMenu(QMenuBar& bar, const std::function<void(int number)>& chosen) {
    for (const auto& menu : MainMenu())
        Fill(*bar.addMenu(menu.text), menu.entries, chosen);
}

} // namespace ondrilo
