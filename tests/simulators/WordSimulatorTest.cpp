#include "simulators/WordSimulation.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ondrilo {

void PrintTo(const WordSimulationFigures& figures, std::ostream* out) {
    *out << ResultsRow(figures) << figures.positionSum << " " << figures.lettersSum;
}

namespace {

/// A profile "ana" with a dictionary on disk, and a text to write.
class WordSimulator : public testing::Test {
  protected:
    WordSimulator() {
        for (const char* name : {"geral.frs", "geral.paf", "ana.pal", "ana.par", "ana.frs", "ana.paf"})
            folder.Write(name, "");
        folder.Write("geral.pal", "bom 4\ncasa 9\ncasaco 2\ndia 3\n");
        folder.Write("geral.par", "bom dia 2\n");
    }
    void Load() {
        const bool adapts = profile.properties.IsOn(option::ADAPTACAO_UTILIZADOR);
        EXPECT_TRUE(
            profile.dictionary.LoadProfileDictionaries(DataFolder(folder.Path()), "ana", adapts).empty());
    }
    bool Start(TextView text) {
        return simulator.Start(profile.dictionary, profile.properties, folder.Write("texto.txt", text));
    }
    WordSimulationFigures Write(TextView text) {
        EXPECT_TRUE(Start(text));
        while (simulator.Step())
            ;
        const auto figures = simulator.Figures();
        EXPECT_EQ(simulator.CountWords(), figures.words);
        EXPECT_TRUE(simulator.End().empty());
        return figures;
    }

    TemporaryFolder folder;
    CUserProfile profile{std::make_shared<GeneralStore>()};
    CWordPredictionSimulator simulator;
};

TEST_F(WordSimulator, AWordIsTakenAsSoonAsTheListHoldsIt) {
    Load();
    // "bom" comes after its b, "dia" at once, and neither needs its separator written.
    EXPECT_EQ(Write("bom dia"), (WordSimulationFigures{2, 8, 3, 6, 3, 3, 2, 0, 1}));
    // A letter that nothing begins with, and its separator.
    EXPECT_EQ(Write("x"), (WordSimulationFigures{1, 2, 2, 1, 2, 1, 0, 0, 0}));
    // Both are in the list of their c, "casa" before "casaco".
    EXPECT_EQ(Write("casaco casa\n"), (WordSimulationFigures{2, 12, 4, 10, 4, 4, 2, 1, 2}));
    profile.Set(option::NUMERO_MAXIMO_PALAVRAS_PREDITAS, 0);
    EXPECT_EQ(Write("bom"), (WordSimulationFigures{1, 4, 4, 3, 4, 3, 0, 0, 0}));
}

TEST_F(WordSimulator, CapitalsCostTheirKeysAndAreFoundAmongSmallWords) {
    Load();
    // C costs Shift, with and without prediction, and finds "casa".
    EXPECT_EQ(Write("Casa"), (WordSimulationFigures{1, 5, 2, 5, 3, 2, 1, 0, 1}));
    // On one line Caps Lock serves both letters; each on its own has a blank after it, and Shift.
    EXPECT_EQ(Write("A B").keyPresses, 2 + 1);
    EXPECT_EQ(Write("A\n\nB").keyPresses, 2 + 2);
}

TEST_F(WordSimulator, NoContextCrossesALine) {
    Load();
    EXPECT_EQ(Write("bom\ndia").userCharacters, 2 + 2);
    EXPECT_EQ(Write("bom, dia").userCharacters, 2 + 1);
}

TEST_F(WordSimulator, WithoutAdaptationNothingIsWrittenOrReadAgain) {
    Load();
    profile.dictionary.AddUserWord("guardada");
    EXPECT_EQ(Write("xis xis").userCharacters, 8);
    EXPECT_EQ(folder.Read("ana.pal"), "");
    EXPECT_TRUE(profile.dictionary.GetWord("guardada"));
}

TEST_F(WordSimulator, WhatARunLearnsHelpsTheRunAndIsGoneAfterIt) {
    profile.Set(option::ADAPTACAO_UTILIZADOR, 1);
    Load();
    profile.dictionary.AddUserWord("guardada");
    profile.dictionary.AddUserSentence("tudo bem.");
    // "xis" is known the second time, "casa" follows it the second time.
    EXPECT_EQ(Write("Xis casa, xis casa").userCharacters, 4 + 2 + 2 + 1);
    EXPECT_EQ(folder.Read("ana.pal"), "guardada 1\n");
    EXPECT_EQ(folder.Read("ana.frs"), "tudo|bem. 1\n");
    EXPECT_TRUE(profile.dictionary.GetWord("guardada")) << "what the person had taught is still known";
    EXPECT_TRUE(profile.dictionary.GetSentence("tudo bem."));
    EXPECT_FALSE(profile.dictionary.GetWord("xis"));
    EXPECT_EQ(profile.dictionary.WordTotals().user, 1);
    EXPECT_EQ(profile.dictionary.WordTotals().userPairs, 0);
}

TEST_F(WordSimulator, NothingBeginsThatCouldNotBeTakenBack) {
    profile.Set(option::ADAPTACAO_UTILIZADOR, 1);
    Load();
    EXPECT_FALSE(simulator.Start(profile.dictionary, profile.properties, folder.Path() / "nada.txt"));
    EXPECT_TRUE(simulator.Problem().empty());

    profile.dictionary.AddUserWord("guardada");
    const TemporaryFolder elsewhere;
    const auto text = elsewhere.Write("texto.txt", "bom dia");
    std::filesystem::remove_all(folder.Path());
    EXPECT_FALSE(simulator.Start(profile.dictionary, profile.properties, text));
    EXPECT_FALSE(simulator.Problem().empty());
    EXPECT_TRUE(profile.dictionary.GetWord("guardada"));
}

/// Notes the figures of each run.
struct Runs : WordSimulationObserver {
    void RunStarts(int) override {}
    void WordWritten(TextView, const WordSimulationFigures&) override { ++words; }
    void RunEnds(const WordSimulationFigures& figures) override { ended.push_back(figures); }
    int words = 0;
    std::vector<WordSimulationFigures> ended;
};

TEST_F(WordSimulator, TheSchedulesRunWholeAndLeaveTheirLastFactors) {
    const auto text = folder.Write("texto.txt", "bom dia");
    Load();
    Runs asTheyAre;
    SimulateWords(profile, text, WordSimulationType::AsTheyAre, asTheyAre);
    EXPECT_EQ(asTheyAre.ended.size(), 1U);
    EXPECT_FALSE(profile.IsChanged());

    Runs six;
    SimulateWords(profile, text, WordSimulationType::FactorByFactor, six);
    EXPECT_EQ(six.ended.size(), 6U);
    EXPECT_EQ(six.words, 12);
    EXPECT_TRUE(profile.IsChanged());
    const auto get = [this](IntegerOption option) {
        return profile.properties.Get(option);
    };
    EXPECT_EQ((PredictionFactors{
                  get(option::ADAPTACAO_UTILIZADOR) == 1, get(option::COEFICIENTE_FREQUENCIA_PALAVRA),
                  get(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS), get(option::COEFICIENTE_CLASSE_PALAVRA),
                  get(option::COEFICIENTE_FREQUENCIA_PALAVRA_UTILIZADOR),
                  get(option::COEFICIENTE_FREQUENCIA_PAR_PALAVRAS_UTILIZADOR)}),
              (PredictionFactors{true, 100, 100, 0, 100, 100}));
    const auto sweeps = ScheduleOf(WordSimulationType::GraduallyRaised);
    ASSERT_EQ(sweeps.size(), 255U);
    EXPECT_EQ(*sweeps[50], (PredictionFactors{false, 100, 0, 0, 0, 0}));
    EXPECT_EQ(*sweeps[52], (PredictionFactors{false, 50, 2, 0, 0, 0}));
    EXPECT_EQ(*sweeps[152], (PredictionFactors{false, 50, 50, 100, 0, 0}));
    EXPECT_EQ(*sweeps[153], (PredictionFactors{true, 50, 50, 0, 0, 0}));
    EXPECT_EQ(*sweeps[254], (PredictionFactors{true, 50, 50, 0, 50, 100}));
}

TEST(WordSimulationResults, FiguresAreToldAsResearchersReadThem) {
    const WordSimulationFigures figures{2, 100, 71, 40, 41, 9, 2, 3, 1};
    EXPECT_EQ(ResultsRow(figures), "2\t100\t71\t29\t40\t41\t-2\t9\t2\t1.5\t0.5\n");
    EXPECT_EQ(ResultsRow({}), "0\t0\t0\t0\t0\t0\t0\t0\t0\tnan\tnan\n");
    const auto indicators = IndicatorsOf(figures);
    ASSERT_EQ(indicators.size(), 11U);
    EXPECT_EQ(indicators[3].label, "Percentagem de Caracteres Poupados:");
    EXPECT_EQ(indicators[3].value, "29%");
    EXPECT_EQ(indicators[9].value, "1.5");
    LocalTime wednesday;
    wednesday.year = 2026, wednesday.month = 11, wednesday.day = 4, wednesday.weekday = 4;
    wednesday.hour = 18, wednesday.minute = 5, wednesday.second = 6;
    EXPECT_EQ(ResultsFileName("ana", wednesday), "ana Wed Nov  4 18-05-06 2026.sim");
}

TEST(WordSimulationResults, RowsAreOnDiskAsSoonAsTheyAreKnown) {
    const TemporaryFolder folder;
    ResultsFile file;
    EXPECT_TRUE(file.Append({})) << "nothing is open";
    EXPECT_FALSE(file.Open(folder.Path() / "nenhuma" / "x.sim"));
    ASSERT_TRUE(file.Open(folder.Path() / "x.sim"));
    EXPECT_EQ(folder.Read("x.sim"), "");
    ASSERT_TRUE(file.Append({}));
    ASSERT_TRUE(file.Append({}));
    EXPECT_EQ(folder.Read("x.sim"), ResultsRow({}) + ResultsRow({}));
}

} // namespace
} // namespace ondrilo
