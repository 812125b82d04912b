#include "dialogs/CWordPredictionSimulatorDlg.h"
#include "tests/widgets/DialogFixture.h"
#include "tests/widgets/Images.h"

#include <QTimer>

namespace ondrilo {
namespace {

/// Writes "olá tudo " slowly enough for a window to be painted in between.
struct SlowSimulator : Simulator {
    [[nodiscard]] std::vector<TextView> IndicatorLabels() const override { return {"Palavras:", "Letras:"}; }
    [[nodiscard]] std::optional<std::filesystem::path> TextOfClipboard() override { return copied; }
    void Run(const SimulatorChoices& newChoices, SimulatorProgress& progress) override {
        ++runs;
        choices = newChoices;
        progress.RunStarts(2);
        duringRun();
        QTest::qSleep(100);
        progress.WordWritten("olá"_w, {{"Palavras:", "1"}, {"Letras:", "3"}});
        duringRun();
        progress.WordWritten("tudo", {{"Palavras:", "2"}, {"Letras:", "7"}});
    }

    std::optional<std::filesystem::path> copied;
    SimulatorChoices choices;
    std::function<void()> duringRun = [] {
    };
    int runs = 0;
};

using WordSimulatorDialog = DialogFixture;

TEST_F(WordSimulatorDialog, ARunIsPaintedWhileNothingIsAnswered) {
    SlowSimulator simulator;
    CWordPredictionSimulatorDlg dialog(host, simulator);
    Show(dialog);
    const auto& bar = Find<QProgressBar>("progress");

    Click("startButton");
    Click("clipboardButton");
    Click("startButton");
    EXPECT_EQ(simulator.runs, 0) << "there is no text yet";
    simulator.copied = "/tmp/ClipboardFile.tmp";
    Click("clipboardButton");
    EXPECT_EQ(Find<QLabel>("sourceName").text(), "Clipboard");

    PaintCounter onDialog(&dialog);
    bool handled = false;
    QTimer::singleShot(0, [&] { handled = true; });
    std::vector<int> onBar;
    simulator.duringRun = [&] {
        EXPECT_FALSE(handled);
        Click("startButton");
        EXPECT_GT(std::exchange(onDialog.paints, 0), 0);
        onBar.push_back(bar.value());
    };
    Click("type_2");
    Click("startButton");
    EXPECT_EQ(onBar, (std::vector<int>{0, 1}));
    EXPECT_EQ(simulator.runs, 1);
    EXPECT_EQ(simulator.choices.type, 2);
    EXPECT_EQ(simulator.choices.text, "/tmp/ClipboardFile.tmp");
    EXPECT_FALSE(simulator.choices.saveResults);
    EXPECT_EQ(bar.value(), 2);
    EXPECT_EQ(Find<QLabel>("indicator_1").text(), "7");
    EXPECT_EQ(Find<QPlainTextEdit>("writtenText").toPlainText(), "olá tudo ");
    EXPECT_TRUE(Find<QPushButton>("startButton").isEnabled());
}

} // namespace
} // namespace ondrilo
