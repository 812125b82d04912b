#include "tests/app/RunningSystem.h"

namespace ondrilo {
namespace {

constexpr TextView kLearned = "As palavras e frases do utilizador foram incorporadas no dicionário."_w;

/// The system, and what is shown of a simulation.
class Simulating : public RunningSystem, public SimulatorProgress {
  protected:
    void RunStarts(int words) override { announced.push_back(words); }
    void WordWritten(TextView word, const std::vector<Indicator>& newest) override {
        written.append(word).append(" ");
        indicators = newest;
    }

    std::vector<int> announced;
    Text written;
    std::vector<Indicator> indicators;
};

TEST_F(Simulating, ATextTeachesItsWordsAndSentencesWhateverTheProfileLearnsOtherwise) {
    StartWriting("ADAPTACAO_UTILIZADOR 0\n");
    dialogs.chosenFile = folder.Write("carta.txt", "Olá avó. Tudo bem?\r\nAté já"_w);
    Choose(menu::LearnFromFile);
    EXPECT_EQ(journal.Take(), Texts("menu 32908", "busy", "not busy"));
    EXPECT_EQ(boxes.shown, Texts(kLearned));
    EXPECT_EQ(Dictionary().GetWord("avó"_w).UserFrequency(), 1);
    EXPECT_EQ(Dictionary().GetWord("olá"_w).MaxUserNextFrequency(), 1);
    EXPECT_EQ(Dictionary().GetSentence("olá avó."_w).MaxUserNextFrequency(), 1);
    EXPECT_TRUE(Dictionary().GetSentence("até já"_w)) << Dictionary().SentenceCount();

    dialogs.chosenFile.reset();
    Choose(menu::LearnFromFile);
    EXPECT_EQ(boxes.shown.size(), 1U) << "nothing was chosen";
    EXPECT_EQ(Dictionary().GetWord("avó"_w).UserFrequency(), 1);
}

TEST_F(Simulating, TheClipboardTeachesOnlyWhatFitsIntoIt) {
    StartWriting();
    clipboard.text = "sopa quente";
    Choose(menu::LearnFromClipboard);
    EXPECT_EQ(folder.Read("ClipboardFile.tmp"), "sopa quente");
    EXPECT_EQ(Dictionary().GetWord("sopa").UserFrequency(), 1);

    // What lies there from before must not be learned again.
    clipboard.text = Text(10'000, 'x');
    Choose(menu::LearnFromClipboard);
    clipboard.text.clear();
    Choose(menu::LearnFromClipboard);
    EXPECT_EQ(Dictionary().GetWord("sopa").UserFrequency(), 1);
    EXPECT_EQ(boxes.shown, Texts(kLearned));
    EXPECT_EQ(frame.statusMessages.size(), 2U);
}

TEST_F(Simulating, ASimulationShowsItsFiguresWritesItsRowAndLeavesNothingLearned) {
    StartWriting("TECLAS_COMPLETAR 0\n");
    Type("tu");
    clipboard.text = "Tudo bem";
    clock.local.weekday = 5;
    dialogs.inSimulator = [this](Simulator& simulator) {
        EXPECT_FALSE(frame.topMost);
        EXPECT_EQ(simulator.IndicatorLabels().size(), 11U);
        const auto text = simulator.TextOfClipboard();
        ASSERT_TRUE(text);
        simulator.Run({*text, 0, true}, *this);
    };
    Choose(menu::SimulateWords);
    EXPECT_EQ(announced, std::vector<int>{2});
    EXPECT_EQ(written, "Tudo bem ");
    ASSERT_EQ(indicators.size(), 11U);
    EXPECT_EQ(indicators[0].value, "2");
    EXPECT_EQ(folder.Read("generico Thu Jan  1 00-00-00 1970.sim"),
              "2\t9\t4\t55\t8\t5\t37\t4\t2\t0.0\t1.0\n");
    EXPECT_EQ(Dictionary().WordTotals().user, 0);
    EXPECT_TRUE(frame.topMost);
    EXPECT_EQ(Labels(0)[0], ": tudo") << "the keys show predictions again";
}

TEST_F(Simulating, AResultsFileThatCannotBeWrittenStopsNoSimulation) {
    StartWriting("ADAPTACAO_UTILIZADOR 0\n");
    const TemporaryFolder elsewhere;
    const auto text = elsewhere.Write("texto.txt", "bem");
    std::filesystem::remove_all(folder.Path());
    dialogs.inSimulator = [&](Simulator& simulator) {
        simulator.Run({text, 0, true}, *this);
    };
    Choose(menu::SimulateWords);
    EXPECT_EQ(boxes.shown, Texts("Erro na abertura do ficheiro de metricas!"));
    EXPECT_EQ(written, "bem ");
}

} // namespace
} // namespace ondrilo
