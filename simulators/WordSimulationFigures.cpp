#include "simulators/WordSimulationFigures.h"

#include "text/Splitter.h"

#include <charconv>
#include <iterator>
#include <limits>

namespace ondrilo {
namespace {

/// In percent of `all`, towards zero.
int Saved(int all, int byUser) {
    if (all == 0)
        return 0;
    return static_cast<int>(static_cast<float>(all - byUser) / static_cast<float>(all) * 100);
}

Text PercentSaved(int all, int byUser) {
    return std::to_string(Saved(all, byUser)) + "%";
}

/// With one decimal; without anything to divide by it is not a number, and told so.
Text Average(int sum, int count) {
    const float average = count == 0 ? std::numeric_limits<float>::quiet_NaN()
                                     : static_cast<float>(sum) / static_cast<float>(count);
    char digits[64];
    const auto end = std::to_chars(digits, std::end(digits), average, std::chars_format::fixed, 1);
    return {digits, end.ptr};
}

} // namespace

std::vector<Indicator> IndicatorsOf(const WordSimulationFigures& f) {
    return {
        {"Número de Palavras:"_w, std::to_string(f.words)},
        {"Número de Caracteres:"_w, std::to_string(f.characters)},
        {"Número de Caracteres Escritos Pelo Utilizador:"_w, std::to_string(f.userCharacters)},
        {"Percentagem de Caracteres Poupados:", PercentSaved(f.characters, f.userCharacters)},
        {"Número de Teclas Pressionadas:"_w, std::to_string(f.keyPresses)},
        {"Número de Teclas Pressionadas Pelo Utilizador:"_w, std::to_string(f.userKeyPresses)},
        {"Percentagem de Teclas Poupadas:", PercentSaved(f.keyPresses, f.userKeyPresses)},
        {"Número de Predições Efectuadas:"_w, std::to_string(f.predictions)},
        {"Numero de Predições Com Sucesso:"_w, std::to_string(f.successes)},
        {"Posição Média das Palavras Preditas na Lista:"_w, Average(f.positionSum, f.successes)},
        {"Número Médio de Caracteres Para Predição:"_w, Average(f.lettersSum, f.successes)},
    };
}

Text ResultsRow(const WordSimulationFigures& f) {
    const Tokens columns{std::to_string(f.words),
                         std::to_string(f.characters),
                         std::to_string(f.userCharacters),
                         std::to_string(Saved(f.characters, f.userCharacters)),
                         std::to_string(f.keyPresses),
                         std::to_string(f.userKeyPresses),
                         std::to_string(Saved(f.keyPresses, f.userKeyPresses)),
                         std::to_string(f.predictions),
                         std::to_string(f.successes),
                         Average(f.positionSum, f.successes),
                         Average(f.lettersSum, f.successes)};
    return Join(columns, "\t") + "\n";
}

} // namespace ondrilo
