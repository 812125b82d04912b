#pragma once

#include "text/Text.h"

#include <optional>

namespace ondrilo {

/// The symbols that a key with the label "<Nenhum>" shows in place of a text, one for each output that has
/// one.
enum class KeySymbol {
    Shift,
    Up,
    Down,
    Left,
    Right,
    Enter,
    Backspace,
    Tab,
    Space,
    CapsLock,
    SpeakWord,
    SpeakSentence,
    SpeakAll,
    SendMessage,
    Quit,
    Logging,
    Clear,
    NextPredictions,
};

inline constexpr TextView kSymbolLabel = "<Nenhum>";

struct SymbolOutput {
    TextView output;
    KeySymbol symbol;
    int halfHeights; ///< width of such a key, in halves of the key height; the label does not change it
};

inline constexpr SymbolOutput kSymbolOutputs[] = {
    {"Shift", KeySymbol::Shift, 2},
    {"Cima", KeySymbol::Up, 2},
    {"Baixo", KeySymbol::Down, 2},
    {"Esquerda", KeySymbol::Left, 2},
    {"Direita", KeySymbol::Right, 2},
    {"Enter", KeySymbol::Enter, 4},
    {"BkSp", KeySymbol::Backspace, 4},
    {"Tab", KeySymbol::Tab, 4},
    {"Space", KeySymbol::Space, 10},
    {"CapsLock", KeySymbol::CapsLock, 4},
    {"[Sintetizar-Fala-Palavra]", KeySymbol::SpeakWord, 3},
    {"[Sintetizar-Fala-Frase]", KeySymbol::SpeakSentence, 3},
    {"[Sintetizar-Fala-Area-Trabalho]", KeySymbol::SpeakAll, 3},
    {"[Enviar-Mensagem-Editor_Externo]", KeySymbol::SendMessage, 4},
    {"[Trocar-Modo-Logging]", KeySymbol::Logging, 2},
    {"[Sair-Aplicação]"_w, KeySymbol::Quit, 2},
    {"[Limpar-Area-Trabalho]", KeySymbol::Clear, 2},
    {"[Mostrar-Predições-Seguintes]"_w, KeySymbol::NextPredictions, 2},
};

/// The row of an output, or null if it has neither symbol nor fixed width.
[[nodiscard]] constexpr const SymbolOutput* FindSymbolOutput(TextView output) {
    for (const auto& row : kSymbolOutputs)
        if (row.output == output)
            return &row;
    return nullptr;
}

/// The symbol of a key's output, or nothing if the output has none.
[[nodiscard]] constexpr std::optional<KeySymbol> SymbolOf(TextView output) {
    const auto* row = FindSymbolOutput(output);
    return row ? std::optional(row->symbol) : std::nullopt;
}

/// True if a text label is broken at words: more than two words, or a sentence mark beside a word.
[[nodiscard]] bool IsWrappedLabel(TextView label);

} // namespace ondrilo
