#include "benchmarks/GeneratedData.h"
#include "benchmarks/Measures.h"
#include "profiles/store/CUserProfile.h"

#include <memory>
#include <stdexcept>

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

/// Profiles with the general files of the full data in common, each with a copy of the person's own.
class Profiles {
  public:
    explicit Profiles(std::size_t count) : folder(GeneratedData::Full().Folder()) {
        for (std::size_t i = 0; i < count; ++i)
            Add("p" + std::to_string(i));
    }

    CUserProfile& operator[](std::size_t i) { return *profiles[i]; }
    void Load(std::size_t i) {
        if (!profiles[i]->LoadDictionary().empty())
            throw std::runtime_error("a file is missing");
    }

  private:
    void Add(const Text& name) {
        for (const char* extension : {".pal", ".par", ".abr", ".frs", ".paf"})
            std::filesystem::copy_file(folder / (Text(GeneratedData::ProfileName()) + extension),
                                       folder / (name + extension),
                                       std::filesystem::copy_options::overwrite_existing);
        auto& profile = *profiles.emplace_back(std::make_unique<CUserProfile>(general));
        profile.properties.profileName = name;
        profile.properties.dictionaryFolder = folder;
    }

    std::filesystem::path folder;
    std::shared_ptr<GeneralStore> general = std::make_shared<GeneralStore>();
    std::vector<std::unique_ptr<CUserProfile>> profiles;
};

/// One profile is left and another opened. `learned`: all four files of the one that is left are saved.
void ChangeProfile(benchmark::State& state, bool learned) {
    Profiles profiles(2);
    profiles.Load(0);
    std::size_t active = 0;
    while (state.KeepRunning()) {
        const Lessons lessons{{Lesson::Kind::Word, "___"},
                              {Lesson::Kind::WordPair, "___", "___"},
                              {Lesson::Kind::Sentence, "___"},
                              {Lesson::Kind::SentencePair, "___", "___"}};
        if (learned)
            (void)profiles[active].Learn(lessons);
        (void)profiles[active].ReleaseDictionary();
        active = 1 - active;
        profiles.Load(active);
    }
}

void ChangeUnchangedProfile(benchmark::State& state) {
    ChangeProfile(state, false);
}
BENCHMARK(ChangeUnchangedProfile)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

void ChangeProfileThatLearned(benchmark::State& state) {
    ChangeProfile(state, true);
}
BENCHMARK(ChangeProfileThatLearned)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

void KeepTenProfiles(benchmark::State& state) {
    while (state.KeepRunning()) {
        ResetPeakMemory();
        const Memory before = ReadMemory();
        Profiles profiles(10);
        for (std::size_t i = 0; i < 10; ++i)
            profiles.Load(i);
        ReportMemory(state, before, ReadMemory());
    }
}
BENCHMARK(KeepTenProfiles)->Unit(benchmark::kMillisecond)->Iterations(1);

/// A word as the session learns it: the word, the pair with the one before, and their line in the journal.
void LearnWords(benchmark::State& state, const std::vector<Text>& words) {
    Profiles profiles(1);
    profiles.Load(0);
    Percentiles percentiles;
    std::size_t next = 0;
    Text previous = "___";
    while (state.KeepRunning()) {
        const Text& word = words[next++ % words.size()];
        percentiles.Measure([&] {
            (void)profiles[0].Learn(
                Lessons{{Lesson::Kind::Word, word}, {Lesson::Kind::WordPair, previous, word}});
        });
        previous = word;
    }
    percentiles.Report(state);
    (void)profiles[0].ReleaseDictionary();
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
