#pragma once

#include "platform/Dialogs.h"
#include "platform/FileStore.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <vector>

namespace ondrilo {

/// The integers are switches but for PAPEL_COMUNICACAO_COOPERATIVA: 0 client, 1 server.
enum class IntegerSystemOption : std::size_t {
    ADAPTACAO_CONTEXTO,
    ALTERACOES_SISTEMA,
    PAPEL_COMUNICACAO_COOPERATIVA,
    LIMPAR_SUGESTOES_APOS_SELECCAO,
    ADAPTAR_APENAS_COM_PERFIL_GENERICO_ATIVO,
};
enum class TextSystemOption : std::size_t {
    MODO_PROCURA_ETIQUETAS_BLUETOOTH,
    PORTA_GPS,
    NOME_SERVIDOR_COMUNICACAO_COOPERATIVA,
    PERFIL_UTILIZADOR_ARRANQUE,
};
namespace system_option {
using enum IntegerSystemOption;
using enum TextSystemOption;
} // namespace system_option

enum class SystemOptionKind { Integer, Text, MarkedText, List };

/// A line of the file; `index` is the value of its handle. Blanks of a marked text are written as ";;;".
struct SystemOption {
    TextView key;
    SystemOptionKind kind;
    std::size_t index;
};

template <typename Option>
constexpr SystemOption SystemOptionRow(TextView key, SystemOptionKind kind, Option option) {
    return {key, kind, static_cast<std::size_t>(option)};
}
#define SYSTEM_OPTION(kind, key) SystemOptionRow(#key, SystemOptionKind::kind, system_option::key)
/// In the order of the file. The server's name stands in it twice; the reader keeps the second.
inline constexpr SystemOption kSystemOptions[] = {
    SYSTEM_OPTION(Integer, ADAPTACAO_CONTEXTO),
    SYSTEM_OPTION(Text, MODO_PROCURA_ETIQUETAS_BLUETOOTH),
    SYSTEM_OPTION(Text, PORTA_GPS),
    SYSTEM_OPTION(Integer, ALTERACOES_SISTEMA),
    SYSTEM_OPTION(Integer, PAPEL_COMUNICACAO_COOPERATIVA),
    SYSTEM_OPTION(Text, NOME_SERVIDOR_COMUNICACAO_COOPERATIVA),
    SYSTEM_OPTION(MarkedText, PERFIL_UTILIZADOR_ARRANQUE),
    SYSTEM_OPTION(MarkedText, NOME_SERVIDOR_COMUNICACAO_COOPERATIVA),
    SYSTEM_OPTION(Integer, LIMPAR_SUGESTOES_APOS_SELECCAO),
    SYSTEM_OPTION(Integer, ADAPTAR_APENAS_COM_PERFIL_GENERICO_ATIVO),
    {"LISTA_PRIORIDADES_ADAPTACAO_CONTEXTO", SystemOptionKind::List, 0},
};
#undef SYSTEM_OPTION

/// What belongs to the installation and not to a person. Kept in the file "configsis" of the data folder,
/// "KEY value" a line.
class CSystemOptions {
  public:
    [[nodiscard]] int Get(IntegerSystemOption option) const {
        return integers[static_cast<std::size_t>(option)];
    }
    [[nodiscard]] const Text& Get(TextSystemOption option) const {
        return texts[static_cast<std::size_t>(option)];
    }
    [[nodiscard]] bool IsOn(IntegerSystemOption option) const { return Get(option) != 0; }
    void Set(IntegerSystemOption option, int value);
    void Set(TextSystemOption option, TextView value);

    /// The profiles that context adaptation prefers, best first. Reading them counts as a change too.
    [[nodiscard]] std::vector<Text> GetPriorities();
    void SetPriorities(std::vector<Text> names);

    /// Asks for the password of the lock on changes and tells of a wrong one; true if it was given.
    [[nodiscard]] static bool PassesLock(Dialogs& dialogs, MessageBoxes& boxes);
    /// Allows changes of the system if the password is given; true then.
    bool UnlockChanges(Dialogs& dialogs, MessageBoxes& boxes);

    /// Remembers `path`; an absent file changes nothing and is no error.
    void Load(const std::filesystem::path& path);
    /// Writes the file if anything changed.
    SaveResult Save();
    [[nodiscard]] bool IsChanged() const { return changed; }

    void Parse(TextView bytes);
    [[nodiscard]] Text Format() const;

  private:
    void Assign(TextView key, TextView line);

    std::array<int, 5> integers{0, 1, 0, 1, 0};
    std::array<Text, 4> texts{"", "com1", "", "generico"};
    std::vector<Text> priorities;
    std::filesystem::path file;
    bool changed = false;
};

} // namespace ondrilo
