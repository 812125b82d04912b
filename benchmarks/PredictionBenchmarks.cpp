#include "benchmarks/GeneratedData.h"
#include "benchmarks/Measures.h"
#include "prediction/CSentencePredictor.h"
#include "prediction/CWordPredictor.h"
#include "profiles/CUserProfileProperties.h"

#include <set>

namespace ondrilo {
namespace {

constexpr std::size_t kResults = 100;

/// What a person could have written: a text before, and one letter.
struct Question {
    Text previous;
    Text prefix;
};

/// Each initial after each of the most common texts, which have the most successors.
std::vector<Question> AskInitials(const std::vector<Text>& previous, std::size_t most, bool sentences,
                                  const CDictionary& dictionary) {
    std::set<char> initials;
    const Vocabulary& entries = sentences ? dictionary.Sentences() : dictionary.Words();
    for (std::size_t position = 0; position < entries.Count(); ++position)
        initials.insert(entries.TextOf(entries.At(position)).front());
    std::vector<Question> questions;
    for (std::size_t i = 0; i < std::min(most, previous.size()); ++i)
        for (const char initial : initials)
            questions.push_back({previous[i], Text(1, initial)});
    return questions;
}

const CDictionary& FullDictionary() {
    static const auto dictionary = [] {
        auto loaded = std::make_unique<CDictionary>();
        (void)loaded->LoadProfileDictionaries(DataFolder(GeneratedData::Full().Folder()),
                                              GeneratedData::ProfileName(), false);
        return loaded;
    }();
    return *dictionary;
}

CUserProfileProperties AllCoefficients() {
    CUserProfileProperties profile;
    for (const IntegerOption coefficient :
         {option::COEFICIENTE_FREQUENCIA_PALAVRA, option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR,
          option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS, option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR,
          option::COEFICIENTE_CLASSE_PALAVRA})
        profile.Set(coefficient, 100);
    return profile;
}

void PredictWords(benchmark::State& state, const CDictionary& dictionary,
                  const std::vector<Question>& questions) {
    const CUserProfileProperties profile = AllCoefficients();
    CWordPredictor predictor;
    CDictionaryWordScoreSet out;
    out.reserve(kResults);
    Percentiles percentiles;
    const auto ask = [&](const Question& question) {
        predictor.Predict(dictionary, profile, question.previous, question.prefix);
        benchmark::DoNotOptimize(predictor.BestWords(kResults, out));
    };
    ask(questions.front());
    std::size_t next = 0;
    while (state.KeepRunning()) {
        const Question& question = questions[next++ % questions.size()];
        percentiles.Measure([&] { ask(question); });
    }
    percentiles.Report(state);
}

void WordsWithOneLetter(benchmark::State& state) {
    const CDictionary& dictionary = FullDictionary();
    PredictWords(state, dictionary, AskInitials(GeneratedData::Full().CommonWords(), 100, false, dictionary));
}
BENCHMARK(WordsWithOneLetter)->Unit(benchmark::kMicrosecond)->Iterations(10'000);

void WordsAfterAWord(benchmark::State& state) {
    std::vector<Question> questions;
    for (const Text& word : GeneratedData::Full().CommonWords())
        questions.push_back({word, {}});
    PredictWords(state, FullDictionary(), questions);
}
BENCHMARK(WordsAfterAWord)->Unit(benchmark::kMicrosecond)->Iterations(5'000);

void PredictSentences(benchmark::State& state, const std::vector<Question>& questions) {
    const CDictionary& dictionary = FullDictionary();
    const CUserProfileProperties profile;
    CSentencePredictor predictor;
    CDictionarySentenceScoreSet out;
    out.reserve(kResults);
    Percentiles percentiles;
    const auto ask = [&](const Question& question) {
        predictor.Predict(dictionary, profile, question.previous, question.prefix);
        benchmark::DoNotOptimize(predictor.BestSentences(kResults, out));
    };
    for (const Question& question : questions)
        ask(question);
    std::size_t next = 0;
    while (state.KeepRunning()) {
        const Question& question = questions[next++ % questions.size()];
        percentiles.Measure([&] { ask(question); });
    }
    percentiles.Report(state);
}

void SentencesWithOneLetter(benchmark::State& state) {
    PredictSentences(state,
                     AskInitials(GeneratedData::Full().CommonSentences(), 100, true, FullDictionary()));
}
BENCHMARK(SentencesWithOneLetter)->Unit(benchmark::kMicrosecond)->Iterations(10'000);

/// The least that the questions of WordsWithOneLetter can cost: one pass over the same candidates with the
/// divisions of a word's own counters, without pairs, classes and the choice of the best.
void PlainLoop(benchmark::State& state) {
    const CDictionary& dictionary = FullDictionary();
    const Vocabulary& words = dictionary.Words();
    const VocabularyTotals totals = dictionary.WordTotals();
    const auto questions = AskInitials(GeneratedData::Full().CommonWords(), 100, false, dictionary);
    std::vector<EntryId> candidates;
    std::vector<double> scores;
    candidates.reserve(words.Count());
    scores.reserve(words.Count());
    Percentiles percentiles;
    std::size_t next = 0;
    while (state.KeepRunning()) {
        candidates.clear();
        words.Collect(words.WithPrefix(questions[next++ % questions.size()].prefix), candidates);
        percentiles.Measure([&] {
            scores.clear();
            double best = 0;
            for (const EntryId word : candidates) {
                const double score = 100.0 * words.UserFrequency(word) / totals.user +
                                     100.0 * words.Frequency(word) / totals.general;
                best = std::max(best, score);
                scores.push_back(score);
            }
            benchmark::DoNotOptimize(best);
        });
    }
    percentiles.Report(state);
}
BENCHMARK(PlainLoop)->Unit(benchmark::kMicrosecond)->Iterations(10'000);

/// Cost over the size of the dictionary, with prefixes that match the same number of words in each.
void WordsBySize(benchmark::State& state) {
    DataSize size;
    size.words = static_cast<std::size_t>(state.range(0));
    size.wordPairs = 8 * size.words;
    size.sentences = size.sentencePairs = 1;
    size.userEntries = size.userPairs = 1;
    const GeneratedData data(size);
    CDictionary dictionary;
    (void)dictionary.LoadGeneralWords(data.Folder() / "geral.pal");
    (void)dictionary.LoadGeneralWordPairs(data.Folder() / "geral.par");

    std::vector<Question> questions;
    const std::size_t step = size.words / 997;
    for (std::size_t position = 0; position < size.words; position += step) {
        const TextView word = dictionary.Words().TextOf(dictionary.Words().At(position));
        for (std::size_t length = 1; length <= word.size(); ++length) {
            const std::size_t matches = dictionary.Words().WithPrefix(word.substr(0, length)).Size();
            if (matches >= 100 && matches < 400)
                questions.push_back({data.CommonWords()[20], Text(word.substr(0, length))});
        }
    }
    PredictWords(state, dictionary, questions);
}
BENCHMARK(WordsBySize)
    ->Arg(10'000)
    ->Arg(50'000)
    ->Arg(250'000)
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(5'000);

} // namespace
} // namespace ondrilo
