#include "logging/CMetrics.h"

#include "text/Counting.h"

#include <charconv>
#include <iterator>
#include <utility>

namespace ondrilo {
namespace {

constexpr TextView kNothing = "-";

/// Six decimals, with a point whatever the language of the desktop.
Text Decimal(double value) {
    char digits[48];
    const auto end = std::to_chars(digits, std::end(digits), value, std::chars_format::fixed, 6);
    return {digits, end.ptr};
}

} // namespace

class MetricLines {
  public:
    void Add(TextView name, TextView value) { lines.push_back(Text(name).append(" ").append(value)); }
    void Add(TextView name, std::int64_t value) { Add(name, std::to_string(value)); }
    void AddMean(TextView name, int sum, int count) {
        Add(name, count == 0 ? Text(kNothing) : Decimal(static_cast<double>(sum) / count));
    }
    [[nodiscard]] std::vector<Text> Take() { return std::move(lines); }

  private:
    std::vector<Text> lines;
};

namespace {

/// What the final texts come to. Pictograms count as the words of their labels, and as symbols.
struct FinalCounts {
    explicit FinalCounts(const std::vector<Text>& texts) {
        for (const Text& text : texts) {
            symbols += CountSymbols(text);
            const Text plain = DropBrackets(text);
            characters += CountCharacters(plain);
            words += CountWords(plain);
            sentences += CountSentences(plain);
            qwertyKeys += CountQwertyKeys(plain);
        }
    }
    int characters = 0, words = 0, sentences = 0, symbols = 0, qwertyKeys = 0;
};

struct CompletionNames {
    TextView count, position, prefix;
};
/// In the order of kinds, and within a kind of sources.
constexpr std::array<CompletionNames, Completion::kKinds * Completion::kSources> kCompletionNames{{
    {"Numero_Palavras_Completadas", "Posicao_Media_Palavras_Lista",
     "Numero_Medio_Caracteres_Completar_Palavras"},
    {"Numero_Palavras_Completadas_A_Partir_Simbolos_Simples",
     "Posicao_Media_Simbolos_Simples_Com_Palavra_Lista",
     "Numero_Medio_Caracteres_Completar_Palavras_A_Partir_Simbolos_Simples"},
    {"Numero_Palavras_Completadas_A_Partir_Simbolos_Compostos",
     "Posicao_Media_Simbolos_Compostos_Com_Palavra_Lista",
     "Numero_Medio_Caracteres_Completar_Palavras_A_Partir_Simbolos_Compostos"},
    {"Numero_Sequencias_Palavras_Completadas", "Posicao_Media_Sequencias_Palavras_Lista",
     "Numero_Medio_Caracteres_Completar_Sequencia_Palavras"},
    {"Numero_Sequencias_Palavras_Completadas_A_Partir_Simbolos_Simples",
     "Posicao_Media_Simbolos_Simples_Com_Sequencia_Palavras_Lista",
     "Numero_Medio_Caracteres_Completar_Sequencia_Palavras_A_Partir_Simbolos_Simples"},
    {"Numero_Sequencias_Palavras_Completadas_A_Partir_Simbolos_Compostos",
     "Posicao_Media_Simbolos_Compostos_Com_Sequencia_Palavra_Lista", // "Palavra": so it stands in all logs
     "Numero_Medio_Caracteres_Completar_Sequencia_Palavras_A_Partir_Simbolos_Compostos"},
    {"Numero_Frases_Completadas", "Posicao_Media_Frases_Lista", "Numero_Medio_Caracteres_Completar_Frases"},
    {"Numero_Frases_Completadas_A_Partir_Simbolos_Simples", "Posicao_Media_Simbolos_Simples_Com_Frase_Lista",
     "Numero_Medio_Caracteres_Completar_Frases_A_Partir_Simbolos_Simples"},
    {"Numero_Frases_Completadas_A_Partir_Simbolos_Compostos",
     "Posicao_Media_Simbolos_Compostos_Com_Frase_Lista",
     "Numero_Medio_Caracteres_Completar_Frases_A_Partir_Simbolos_Compostos"},
}};

std::size_t IndexOf(const Completion& completion) {
    return static_cast<std::size_t>(completion.kind) * Completion::kSources +
           static_cast<std::size_t>(completion.source);
}

} // namespace

void CMetrics::Reset() {
    *this = {};
}

void CMetrics::Count(Metric metric, int amount) {
    counters[static_cast<std::size_t>(metric)] += amount;
}

void CMetrics::Completed(const Completion& completion) {
    auto& tally = completions[IndexOf(completion)];
    ++tally.count;
    tally.positions += completion.position;
    tally.prefixes += completion.prefixLength;
}

std::vector<Text> CMetrics::Lines(const MetricsFacts& facts) const {
    MetricLines lines;
    AddGeneral(lines, facts);
    AddCompletions(lines);
    AddTail(lines);
    return lines.Take();
}

void CMetrics::AddGeneral(MetricLines& lines, const MetricsFacts& facts) const {
    const auto add = [&](TextView name, Metric metric) {
        lines.Add(name, Of(metric));
    };
    const FinalCounts written(facts.finalTexts);
    lines.Add("Tempo_Total_Escrita", facts.totalSeconds);
    lines.Add("Tempo_Efectivo_Escrita", facts.effectiveSeconds);
    add("Numero_Teclas_Pressionadas", Metric::KeyPress);
    add("Numero_Teclas_Sistema", Metric::SystemKey);
    lines.Add("Numero_Total_Teclas", Of(Metric::KeyPress) + Of(Metric::SystemKey));
    add("Numero_Teclas_Ecra_Pressionadas", Metric::ScreenKey);
    lines.Add("Numero_Activacoes_Manipulos", facts.switchActivations);
    if (facts.hasEditor) {
        const int keys = written.qwertyKeys;
        lines.Add("Numero_Teclas_Texto_Teclado_Qwerty", keys);
        lines.Add("Teclas_Poupadas_Comparacao_Escrita_Teclado_Qwerty", Saving(keys, Of(Metric::KeyPress)));
        lines.Add("Teclas_Ecra_Poupadas_Comparacao_Escrita_Teclado_Qwerty",
                  Saving(keys, Of(Metric::ScreenKey)));
        lines.Add("Activacoes_Manipulo_Poupadas_Comparacao_Escrita_Teclado_Qwerty",
                  Saving(keys, facts.switchActivations));
    }
    add("Numero_Caracteres_Escritos", Metric::Character);
    add("Numero_Palavras_Escritas", Metric::Word);
    add("Numero_Frases_Escritas", Metric::Sentence);
    lines.Add("Numero_Caracteres_Finais", written.characters);
    lines.Add("Numero_Palavras_Finais", written.words);
    lines.Add("Numero_Frases_Finais", written.sentences);
    add("Numero_Cliques", Metric::Click);
    add("Numero_Simbolos_Simples_Seleccionados", Metric::SelectedPictogram);
    add("Numero_Simbolos_Compostos_Seleccionados", Metric::SelectedPictogramSentence);
    add("Numero_Simbolos_Simples_Escritos", Metric::WrittenPictogram);
    add("Numero_Simbolos_Compostos_Escritos", Metric::WrittenPictogramSentence);
    lines.Add("Numero_Simbolos_Finais", written.symbols);
    add("Numero_Alteracoes_Teclado_Ecran_Atraves_Menu", Metric::KeyboardByMenu);
    add("Numero_Alteracoes_Teclado_Ecran_Atraves_Teclado_Ecran", Metric::KeyboardByKey);
    add("Numero_Adaptacoes_Contexto", Metric::ContextAdaptation);
    add("Numero_Envios_Comunicacao_Cooperativa", Metric::CooperativeDelivery);
    add("Numero_Sugestoes_Palavras", Metric::WordHint);
    add("Numero_Sugestoes_Frases", Metric::SentenceHint);
    add("Numero_Sugestoes_Simbolos_Simples", Metric::PictogramHint);
    add("Numero_Sugestoes_Simbolos_Multiplos", Metric::PictogramSentenceHint);
    add("Numero_Abreviaturas_Expandidas", Metric::Abbreviation);
    add("Numero_Predicoes", Metric::Prediction);
    add("Numero_Procuras_Predições_Seguintes"_w, Metric::NextPredictions);
}

void CMetrics::AddCompletions(MetricLines& lines) const {
    for (std::size_t i = 0; i < completions.size(); ++i) {
        const auto& [count, positions, prefixes] = completions[i];
        const auto& names = kCompletionNames[i];
        lines.Add(names.count, count);
        lines.AddMean(names.position, positions, count);
        lines.AddMean(names.prefix, prefixes, count);
    }
}

void CMetrics::AddTail(MetricLines& lines) const {
    const auto add = [&](TextView name, Metric metric) {
        lines.Add(name, Of(metric));
    };
    add("Numero_Simbolos_Simples_Preditos_Seleccionados", Metric::PredictedPictogram);
    lines.AddMean("Posicao_Media_Simbolos_Simples_Lista", Of(Metric::PredictedPictogramPosition),
                  Of(Metric::PredictedPictogram));
    add("Numero_Simbolos_Compostos_Preditos_Seleccionados", Metric::PredictedPictogramSentence);
    lines.AddMean("Posicao_Media_Simbolos_Compostos_Lista", Of(Metric::PredictedPictogramSentencePosition),
                  Of(Metric::PredictedPictogramSentence));
    add("Numero_Caracteres_Simbolos_Apagados", Metric::Correction);
    add("Palavras_Sintetizadas", Metric::SpokenWord);
    add("Frases_Sintetizadas", Metric::SpokenSentence);
    add("Simbolos_Sintetizados", Metric::SpokenPictogram);
    add("Total_Palavras_Sintetizadas", Metric::WordInSpeech);
    add("Total_Frases_Sintetizadas", Metric::SentenceInSpeech);
    add("Texto_Area_Trabalho_Sintetizado", Metric::SpokenText);
}

Text Saving(int qwertyKeys, int activations) {
    if (qwertyKeys < 1)
        return Text(kNothing);
    return Decimal((qwertyKeys - activations) * 100.0 / qwertyKeys);
}

} // namespace ondrilo
