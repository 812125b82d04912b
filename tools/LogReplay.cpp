#include "tools/LogReplay.h"

#include "tools/LogCounts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>

namespace ondrilo {
namespace {

using Verdict = ReplayedMetric::Verdict;

/// How far the events show a metric.
enum class Extent { Whole, Part, Nothing };

constexpr TextView kQwertyKeys = "Numero_Teclas_Texto_Teclado_Qwerty";
constexpr TextView kNoValue = "-";

/// Made of the final texts alone.
constexpr std::array<TextView, 5> kOfTexts{"Numero_Caracteres_Finais", "Numero_Palavras_Finais",
                                           "Numero_Frases_Finais", "Numero_Simbolos_Finais", kQwertyKeys};
/// Moved also by what leaves no event: a key that does not write, an empty key, the time after the last one.
constexpr std::array<TextView, 5> kInPart{"Tempo_Total_Escrita", "Numero_Teclas_Pressionadas",
                                          "Numero_Teclas_Sistema", "Numero_Teclas_Ecra_Pressionadas",
                                          "Numero_Activacoes_Manipulos"};
constexpr std::array<TextView, 4> kUntold{"Tempo_Efectivo_Escrita", "Numero_Envios_Comunicacao_Cooperativa",
                                          "Numero_Predicoes", "Numero_Caracteres_Simbolos_Apagados"};
constexpr std::array<TextView, 2> kOfRawInput{"Numero_Total_Teclas", "Numero_Cliques"};
/// Pictograms write texts that no event holds.
constexpr std::array<TextView, 3> kOfPictogramsToo{"Numero_Caracteres_Escritos", "Numero_Palavras_Escritas",
                                                   "Numero_Frases_Escritas"};
constexpr std::array<TextView, 2> kOfPictograms{"Numero_Simbolos_Simples_Escritos",
                                                "Numero_Simbolos_Compostos_Escritos"};

struct SavingNames {
    TextView saving, activations;
};
constexpr std::array<SavingNames, 3> kSavings{
    {{"Teclas_Poupadas_Comparacao_Escrita_Teclado_Qwerty", "Numero_Teclas_Pressionadas"},
     {"Teclas_Ecra_Poupadas_Comparacao_Escrita_Teclado_Qwerty", "Numero_Teclas_Ecra_Pressionadas"},
     {"Activacoes_Manipulo_Poupadas_Comparacao_Escrita_Teclado_Qwerty", "Numero_Activacoes_Manipulos"}}};

template <typename Names>
bool IsIn(const Names& names, TextView name) {
    return std::ranges::find(names, name) != names.end();
}

const LogMetric* Find(const std::vector<LogMetric>& metrics, TextView name) {
    const auto found = std::ranges::find(metrics, name, &LogMetric::name);
    return found == metrics.end() ? nullptr : &*found;
}

template <typename Number>
std::optional<Number> Parse(TextView text) {
    Number number{};
    const auto* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && stop == end ? std::optional(number) : std::nullopt;
}

Text SignedText(double difference, bool isWhole) {
    constexpr int decimals = 6;
    char digits[400];
    const auto end =
        std::to_chars(digits, std::end(digits), difference, std::chars_format::fixed, isWhole ? 0 : decimals);
    return (difference < 0 ? "" : "+") + Text(digits, end.ptr);
}

Extent ExtentOf(const LogMetric& metric, const LogCounts& counts) {
    const TextView name = metric.name;
    if (IsIn(kOfTexts, name))
        return Extent::Whole;
    if (IsIn(kUntold, name))
        return Extent::Nothing;
    const bool isMean =
        name.starts_with("Posicao_Media_") || name.starts_with("Numero_Medio_Caracteres_Completar_");
    const bool isOfPictograms = IsIn(kOfPictograms, name) ||
                                name.find("_A_Partir_Simbolos_") != TextView::npos ||
                                (isMean && name.find("_Com_") != TextView::npos);
    if (isOfPictograms && counts.hasPictograms)
        return Extent::Nothing;
    if (isMean && metric.value != kNoValue && (counts.hasFurtherPage || name.starts_with("Numero_Medio_")))
        return Extent::Nothing;
    if (counts.hasUndecided)
        return isMean ? Extent::Nothing : Extent::Part;
    const bool isInPart = IsIn(kInPart, name) || (IsIn(kOfRawInput, name) && !counts.hasRawInput) ||
                          (IsIn(kOfPictogramsToo, name) && counts.hasPictograms);
    return isInPart ? Extent::Part : Extent::Whole;
}

void Compare(ReplayedMetric& metric, Extent extent) {
    metric.verdict = Verdict::Equal;
    if (metric.logged == metric.recomputed)
        return;
    const auto logged = Parse<double>(metric.logged);
    const auto recomputed = Parse<double>(metric.recomputed);
    if (extent == Extent::Part && logged && recomputed && *logged > *recomputed) {
        metric.verdict = Verdict::AtLeast;
        return;
    }
    metric.verdict = Verdict::Differs;
    const bool isWhole = metric.recomputed.find('.') == Text::npos;
    metric.difference = logged && recomputed ? SignedText(*logged - *recomputed, isWhole) : "!";
}

/// From the activations that the log gives, and the keys that its texts would have cost.
std::optional<Text> ReplaySaving(TextView activations, const LogFile& log, const LogCounts& counts) {
    const auto* keys = Find(counts.Metrics(), kQwertyKeys);
    const auto* logged = Find(log.metrics, activations);
    const auto count = logged ? Parse<int>(logged->value) : std::nullopt;
    return keys && count ? std::optional(Saving(Parse<int>(keys->value).value_or(0), *count)) : std::nullopt;
}

ReplayedMetric ReplayMetric(const LogMetric& logged, const LogFile& log, const LogCounts& counts) {
    ReplayedMetric metric{logged.name, {}, logged.value, Verdict::Unknown, {}};
    auto extent = Extent::Nothing;
    if (const auto saving = std::ranges::find(kSavings, logged.name, &SavingNames::saving);
        saving != kSavings.end()) {
        if (const auto value = ReplaySaving(saving->activations, log, counts)) {
            metric.recomputed = *value;
            extent = Extent::Whole;
        }
    } else if (const auto* counted = Find(counts.Metrics(), logged.name)) {
        metric.recomputed = counted->value;
        extent = ExtentOf(*counted, counts);
    }
    if (extent == Extent::Nothing)
        metric.recomputed.clear();
    else
        Compare(metric, extent);
    return metric;
}

} // namespace

std::vector<ReplayedMetric> Replay(const LogFile& log) {
    const LogCounts counts(log);
    std::vector<ReplayedMetric> all;
    for (const auto& metric : log.metrics)
        all.push_back(ReplayMetric(metric, log, counts));
    if (log.hasEnd)
        return all;
    for (const auto& [name, value] : counts.Metrics())
        if (!IsIn(kOfTexts, name) && ExtentOf({name, value}, counts) != Extent::Nothing)
            all.push_back({name, value, {}, Verdict::NoEnd, {}});
    return all;
}

} // namespace ondrilo
