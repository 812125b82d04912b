#include "benchmarks/GeneratedData.h"
#include "benchmarks/Measures.h"
#include "prediction/CDictionary.h"

#include <memory>

namespace ondrilo {
namespace {

void ReportMemory(benchmark::State& state, const Memory& before, const Memory& after) {
    constexpr double kMegabyte = 1024 * 1024;
    state.counters["resident_MB"] = (after.resident - before.resident) / kMegabyte;
    state.counters["peak_MB"] = (after.peak - before.resident) / kMegabyte;
}

/// Words and word pairs, general and the person's, from files that the system has in its cache.
void LoadWords(benchmark::State& state) {
    const DataFolder folder(GeneratedData::Full().Folder());
    while (state.KeepRunning()) {
        state.PauseTiming();
        ResetPeakMemory();
        const Memory before = ReadMemory();
        auto dictionary = std::make_unique<CDictionary>();
        state.ResumeTiming();
        // In braces: one after the other.
        const std::vector<Text> messages{dictionary->LoadGeneralWords(folder.Path("geral.pal")),
                                         dictionary->LoadGeneralWordPairs(folder.Path("geral.par")),
                                         dictionary->LoadUserWords(folder.Path("bench.pal")),
                                         dictionary->LoadUserWordPairs(folder.Path("bench.par"))};
        state.PauseTiming();
        if (messages != std::vector<Text>(messages.size()))
            state.SkipWithError("a file is missing");
        ReportMemory(state, before, ReadMemory());
        dictionary.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(LoadWords)->Unit(benchmark::kMillisecond)->Iterations(5);

void LoadEverything(benchmark::State& state) {
    const DataFolder folder(GeneratedData::Full().Folder());
    while (state.KeepRunning()) {
        state.PauseTiming();
        ResetPeakMemory();
        const Memory before = ReadMemory();
        auto dictionary = std::make_unique<CDictionary>();
        state.ResumeTiming();
        if (!dictionary->LoadProfileDictionaries(folder, GeneratedData::ProfileName(), true).empty())
            state.SkipWithError("a file is missing");
        state.PauseTiming();
        ReportMemory(state, before, ReadMemory());
        dictionary.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(LoadEverything)->Unit(benchmark::kMillisecond)->Iterations(5);

/// A word as the session learns it: the word, then the pair with the one before.
void LearnWords(benchmark::State& state, const std::vector<Text>& words) {
    CDictionary dictionary;
    (void)dictionary.LoadProfileDictionaries(DataFolder(GeneratedData::Full().Folder()),
                                             GeneratedData::ProfileName(), false);
    Percentiles percentiles;
    std::size_t next = 0;
    Text previous = "___";
    while (state.KeepRunning()) {
        const Text& word = words[next++ % words.size()];
        percentiles.Measure([&] {
            dictionary.AddUserWord(word);
            dictionary.AddUserWordPair(previous, word);
        });
        previous = word;
    }
    percentiles.Report(state);
    // What was learned here is nobody's.
    dictionary.Clear();
}

void LearnKnownWord(benchmark::State& state) {
    LearnWords(state, GeneratedData::Full().CommonWords());
}
BENCHMARK(LearnKnownWord)->Iterations(5'000);

void LearnNewWord(benchmark::State& state) {
    std::vector<Text> words;
    for (const Text& word : GeneratedData::Full().CommonWords())
        for (const TextView ending : {"kq", "wk", "yz", "kk", "ww", "yy", "qz", "zz"})
            words.push_back(word + Text(ending));
    LearnWords(state, words);
}
BENCHMARK(LearnNewWord)->Iterations(4'000);

} // namespace
} // namespace ondrilo
