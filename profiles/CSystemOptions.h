#pragma once

#include "platform/FileStore.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <vector>

namespace ondrilo {

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
