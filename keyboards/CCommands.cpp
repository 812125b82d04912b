#include "keyboards/CCommands.h"

namespace ondrilo {
namespace {

constexpr TextView kChangeProfile = "Alterar-Perfil-Utilizador";

constexpr CommandRow kCommands[] = {
    {"Limpar-Area-Trabalho", 0, "COMMAND_EXECUTION_CLEAR_INTERNAL_WORD_PROCESSOR"},
    {kChangeProfile, 1, "COMMAND_EXECUTION_CHANGE_USER_PROFILE"},
    {"Apagar-Palavra", 0, "COMMAND_EXECUTION_DELETE_WORD"},
    {"Apagar-Frase", 0, "COMMAND_EXECUTION_DELETE_SENTENCE"},
    {"Mostrar-Predições-Seguintes"_w, 0, "COMMAND_EXECUTION_NEXT_PREDICTIONS"},
    {"Sintetizar-Fala-Palavra", 0, "COMMAND_EXECUTION_SPEAK_WORD"},
    {"Sintetizar-Fala-Frase", 0, "COMMAND_EXECUTION_SPEAK_SENTENCE"},
    {"Sintetizar-Fala-Area-Trabalho", 0, "COMMAND_EXECUTION_SPEAK_ALL"},
    {"Sair-Aplicação"_w, 0, "COMMAND_EXECUTION_QUIT_APPLICATION"},
    {"Sintetizar-Descrição-Tecla"_w, 0, "COMMAND_EXECUTION_SPEAK_KEY_DESCRIPTION"},
    {"Enviar-Mensagem-Editor_Externo", 0, "COMMAND_EXECUTION_SEND_MESSAGE_EXTERNAL_EDITOR"},
    {"Trocar-Modo-Logging", 0, "COMMAND_EXECUTION_SWITCH_LOGGING_MODE"},
};

} // namespace

std::vector<Text> CCommands::getNames() {
    std::vector<Text> names;
    for (const auto& row : kCommands)
        names.emplace_back(row.name);
    return names;
}

int CCommands::getArgumentCount(TextView command) {
    const auto* row = Find(command);
    return row ? row->arguments : 0;
}

std::vector<Text> CCommands::getArgumentChoices(TextView command, int index) const {
    if (command != kChangeProfile || index != 0 || !profileNames)
        return {};
    return profileNames();
}

const CommandRow* CCommands::Find(TextView command) {
    for (const auto& row : kCommands)
        if (row.name == command)
            return &row;
    return nullptr;
}

} // namespace ondrilo
