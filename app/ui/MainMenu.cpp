#include "app/ui/MainMenu.h"

#include "app/MenuController.h"

#include <algorithm>
#include <array>
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
        Submenu("&Ficheiro", {Submenu("Exportar", {{"Perfis de Utilizador...", 32916},
                                                   {"Teclados de Ecrã...", 32919},
                                                   {"Galerias de Pictogramas...", 32921},
                                                   {"Todos os Dados...", 32922}}),
                              Submenu("Importar", {{"Perfis de Utilizador...", 32917},
                                                   {"Teclados de Ecrã...", 32918},
                                                   {"Galerias de Pictogramas...", 32920},
                                                   {"Todos os Dados...", 32923},
                                                   {"Pasta de Pictogramas...", 32924}}),
                              {"Desativar Menu", menu::DisableMenu},
                              {"Esconder Menu e Barras", menu::HideMenuAndBars},
                              {"Opções Gerais...", 32912},
                              {"Sai&r", menu::Quit}}),
        Submenu("&Editar", {{"A&nular", menu::Undo},
                            {"Cor&tar", menu::Cut},
                            {"&Copiar", menu::Copy},
                            {"C&olar", menu::Paste}}),
        Submenu("&Perfil",
                {{"Novo Perfil...", 32913},
                 {"Abrir Perfil...", menu::OpenProfile},
                 {"Remover Perfil...", 32915},
                 {"&Opções do Perfil...", 32911},
                 {"Copiar Opções de Outro Perfil...", 32910},
                 Submenu("Dicionário do Perfil", {{"Palavras e Pictogramas...", 32905},
                                                  {"Frases e Sequências de Palavras e Pictogramas...", 32907},
                                                  {"Abreviaturas...", 32906}}),
                 Submenu("Adaptar ao Utilizador", {{"A Partir de Ficheiro...", menu::LearnFromFile},
                                                   {"A Partir do Clipboard", menu::LearnFromClipboard}})}),
        Submenu("&Teclado",
                {Submenu("Novo Teclado", {{"A Criar de Raiz...", 32925}, {"A Partir de Modelo...", 32926}}),
                 {"Abrir Teclado...", 32927},
                 {"Remover Teclado...", 32942},
                 {"Editar Teclado", 32928},
                 {"Guardar Teclado", 32929},
                 {"Terminar Edição", 32930},
                 {"Opções do Teclado...", 32943},
                 {"Gerir Galerias de Pictogramas...", 32931}}),
        Submenu(
            "Fe&rramentas",
            {Submenu("Comunicação Cooperativa", {{"Iniciar Sessão...", 32932}, {"Terminar Sessão", 32933}}),
             Submenu("Registo de Eventos do Sistema", {{"Visualizar Registo de Eventos...", 32936},
                                                       {"Copiar Registo de Eventos Para...", 32900},
                                                       {"Limpar Registo de Eventos...", 32941},
                                                       {"Reiniciar Métricas", 32937},
                                                       {"Métricas do Utilizador...", 32934}}),
             Submenu("Registos do Configurador", {{"Efectuar Registo...", 32899},
                                                  {"Copiar Registo Para...", 32938},
                                                  {"Limpar Registo", 32939}}),
             Submenu("Simuladores", {{"Simulador de Predição de Palavras...", menu::SimulateWords},
                                     {"Simulador de Predição de Texto...", 32948},
                                     {"Simulador de Predição de Pictogramas...", 32950}})}),
        Submenu("Aj&uda", {{"&Acerca Tessivor...", menu::About}}),
    };
}

/// The status line's prompts of the two entries have always been the other's.
const char* PromptOf(int number) {
    switch (number) {
    case menu::LearnFromFile:
        return "Adaptar o dicionário de palavras com base num texto da área de transferência.";
    case menu::LearnFromClipboard:
        return "Adaptar o dicionário de palavras com base num ficheiro de texto.";
    default:
        return "";
    }
}

bool IsBuilt(int number) {
    constexpr std::array built = {menu::LearnFromFile, menu::LearnFromClipboard,
                                  menu::SimulateWords, menu::OpenProfile,
                                  menu::DisableMenu,   menu::HideMenuAndBars,
                                  menu::Copy,          menu::Cut,
                                  menu::Paste,         menu::Undo,
                                  menu::About,         menu::Quit};
    return std::find(built.begin(), built.end(), number) != built.end();
}

void Fill(QMenu& menu, const std::vector<Entry>& entries, const std::function<void(int)>& chosen) {
    for (const auto& entry : entries) {
        if (!entry.entries.empty()) {
            Fill(*menu.addMenu(entry.text), entry.entries, chosen);
            continue;
        }
        auto* action = menu.addAction(entry.text);
        action->setData(entry.number);
        action->setObjectName(QString("command_%1").arg(entry.number));
        action->setStatusTip(PromptOf(entry.number));
        action->setMenuRole(QAction::NoRole);
        action->setEnabled(IsBuilt(entry.number));
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
