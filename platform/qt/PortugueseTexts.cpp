#include "platform/qt/PortugueseTexts.h"

#include <string_view>

namespace ondrilo {
namespace {

struct Row {
    std::string_view source;
    const char* text;
};

constexpr Row kRows[] = {
    // standard buttons
    {"OK", "OK"},
    {"Cancel", "Cancelar"},
    {"Open", "Abrir"},
    {"Save", "Guardar"},
    {"Close", "Fechar"},
    {"&Yes", "&Sim"},
    {"&No", "&Não"},
    // choosers of files and folders
    {"Look in:", "Procurar em:"},
    {"Back", "Recuar"},
    {"Go back", "Voltar à pasta anterior"},
    {"Forward", "Avançar"},
    {"Go forward", "Avançar para a pasta seguinte"},
    {"Parent Directory", "Pasta Acima"},
    {"Go to the parent directory", "Ir para a pasta acima"},
    {"Create New Folder", "Criar Nova Pasta"},
    {"Create a New Folder", "Criar uma nova pasta"},
    {"&New Folder", "&Nova Pasta"},
    {"New Folder", "Nova Pasta"},
    {"List View", "Lista"},
    {"Change to list view mode", "Mostrar como lista"},
    {"Detail View", "Detalhes"},
    {"Change to detail view mode", "Mostrar com detalhes"},
    {"Sidebar", "Locais"},
    {"List of places and bookmarks", "Lista de locais e favoritos"},
    {"Recent Places", "Locais Recentes"},
    {"Files", "Ficheiros"},
    {"Files of type:", "Ficheiros do tipo:"},
    {"File &name:", "&Nome do ficheiro:"},
    {"Directories", "Pastas"},
    {"Directory:", "Pasta:"},
    {"&Open", "&Abrir"},
    {"&Choose", "&Escolher"},
    {"&Save", "&Guardar"},
    {"All Files (*)", "Todos os ficheiros (*)"},
    {"Show ", "Mostrar "},
    {"Show &hidden files", "Mostrar ficheiros &ocultos"},
    {"&Rename", "&Mudar o Nome"},
    {"&Delete", "&Eliminar"},
    {"Remove", "Remover"},
    {"Find Directory", "Procurar Pasta"},
    {"Computer", "Computador"},
    {"My Computer", "O Meu Computador"},
    {"Drive", "Unidade"},
    {"Folder", "Pasta"},
    {"Name", "Nome"},
    {"Size", "Tamanho"},
    {"Type", "Tipo"},
    {"Date Modified", "Data de Modificação"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nO ficheiro não foi encontrado.\nVerifique se o nome está correcto."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nA pasta não foi encontrada.\nVerifique se o nome está correcto."},
    {"%1 already exists.\nDo you want to replace it?", "%1 já existe.\nQuer substituí-lo?"},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     "\"%1\" está protegido contra escrita.\nQuer eliminá-lo mesmo assim?"},
    {"Are you sure you want to delete '%1'?", "Quer mesmo eliminar \"%1\"?"},
    {"Could not delete directory.", "Não foi possível eliminar a pasta."},
    // chooser of colours
    {"Select Color", "Seleccionar Cor"},
    {"&Basic colors", "&Cores básicas"},
    {"&Custom colors", "Cores &personalizadas"},
    {"&Add to Custom Colors", "&Adicionar às Cores Personalizadas"},
    {"&Pick Screen Color", "&Escolher Cor do Ecrã"},
    {"Cursor at %1, %2\nPress ESC to cancel", "Ponteiro em %1, %2\nPrima Esc para cancelar"},
    {"Hu&e:", "Ma&tiz:"},
    {"&Sat:", "&Sat.:"},
    {"&Val:", "&Brilho:"},
    {"&Red:", "Ve&rmelho:"},
    {"&Green:", "&Verde:"},
    {"Bl&ue:", "A&zul:"},
    {"A&lpha channel:", "&Opacidade:"},
    {"&HTML:", "&HTML:"},
    // chooser of fonts
    {"Select Font", "Seleccionar Tipo de Letra"},
    {"&Font", "&Tipo de Letra"},
    {"Font st&yle", "&Estilo"},
    {"&Size", "Ta&manho"},
    {"Effects", "Efeitos"},
    {"Stri&keout", "&Rasurado"},
    {"&Underline", "&Sublinhado"},
    {"Sample", "Amostra"},
    {"Wr&iting System", "Sistema de Es&crita"},
    {"Any", "Qualquer"},
    // menus of text fields, boxes of numbers and scroll bars
    {"&Undo", "&Anular"},
    {"&Redo", "&Refazer"},
    {"Cu&t", "Cor&tar"},
    {"&Copy", "&Copiar"},
    {"&Paste", "C&olar"},
    {"Delete", "Eliminar"},
    {"Select All", "Seleccionar Tudo"},
    {"&Select All", "&Seleccionar Tudo"},
    {"&Step up", "A&umentar"},
    {"Step &down", "&Diminuir"},
    {"Scroll here", "Deslocar para aqui"},
    {"Left edge", "Margem esquerda"},
    {"Right edge", "Margem direita"},
    {"Top", "Início"},
    {"Bottom", "Fim"},
    {"Page left", "Página para a esquerda"},
    {"Page right", "Página para a direita"},
    {"Page up", "Página para cima"},
    {"Page down", "Página para baixo"},
    {"Scroll left", "Deslocar para a esquerda"},
    {"Scroll right", "Deslocar para a direita"},
    {"Scroll up", "Deslocar para cima"},
    {"Scroll down", "Deslocar para baixo"},
};

} // namespace

QString PortugueseTexts::translate(const char* context, const char* source, const char* /*comment*/,
                                   int /*number*/) const {
    // Names of keys are left alone: the program has its own, and settings hold them.
    if (context == std::string_view("QShortcut"))
        return {};
    for (const auto& [english, text] : kRows)
        if (english == source)
            return QString::fromUtf8(text);
    return {};
}

} // namespace ondrilo
