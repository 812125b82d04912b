#pragma once

#include "text/Text.h"

namespace ondrilo {

/// What a key is. A file may name any type; those that no row of the table knows are Other.
enum class KeyType {
    Normal,
    Image,
    Empty,
    WordPrediction,
    SentencePrediction,
    ImagePrediction,
    ImageSentencePrediction,
    Other,
};

struct KeyTypeName {
    KeyType type;
    TextView fileWord; ///< in keyboard files
    TextView shown;    ///< on property pages
};

inline constexpr KeyTypeName kKeyTypes[] = {
    {KeyType::Normal, "TECLA_NORMAL", "Normal"},
    {KeyType::Image, "TECLA_IMAGEM", "Pictograma"},
    {KeyType::Empty, "TECLA_VAZIA", "Vazia"},
    {KeyType::WordPrediction, "TECLA_PREDICAO", "Predição de Palavra"_w},
    {KeyType::SentencePrediction, "TECLA_PREDICAO_FRASE", "Predição de Frase"_w},
    {KeyType::ImagePrediction, "TECLA_PREDICAO_IMAGEM", "Predição de Pictograma"_w},
    {KeyType::ImageSentencePrediction, "TECLA_PREDICAO_FRASE_IMAGENS", "Predição de Frase com Pictogramas"_w},
};

[[nodiscard]] constexpr KeyType KeyTypeOf(TextView fileWord) {
    for (const auto& row : kKeyTypes)
        if (row.fileWord == fileWord)
            return row.type;
    return KeyType::Other;
}

/// One of the four types that are filled at run time.
[[nodiscard]] constexpr bool IsPrediction(KeyType type) {
    return type >= KeyType::WordPrediction && type <= KeyType::ImageSentencePrediction;
}

/// A key that shows a symbol or a text of its own: the only ones with an output in the file.
[[nodiscard]] constexpr bool HasOwnContent(KeyType type) {
    return type == KeyType::Normal || type == KeyType::Image;
}

} // namespace ondrilo
