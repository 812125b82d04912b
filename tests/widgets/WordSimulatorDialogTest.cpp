#include "dialogs/CWordPredictionSimulatorDlg.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeMessageBoxes.h"

#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <utility>

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

/// How often a window was painted.
struct Paints : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

TEST(WordSimulatorDialog, ARunIsPaintedWhileNothingIsAnswered) {
    SlowSimulator simulator;
    FakeDesktop desktop;
    FakeMessageBoxes boxes;
    UserRecord record;
    CWordPredictionSimulatorDlg dialog({desktop, boxes, record}, simulator);
    const auto click = [&](const char* name) {
        dialog.findChild<QAbstractButton*>(name)->click();
    };
    auto* bar = dialog.findChild<QProgressBar*>("progress");
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));

    click("startButton");
    click("clipboardButton");
    click("startButton");
    EXPECT_EQ(simulator.runs, 0) << "there is no text yet";
    simulator.copied = "/tmp/ClipboardFile.tmp";
    click("clipboardButton");
    EXPECT_EQ(dialog.findChild<QLabel*>("sourceName")->text(), "Clipboard");

    Paints paints;
    dialog.installEventFilter(&paints);
    bool handled = false;
    QTimer::singleShot(0, [&] { handled = true; });
    std::vector<int> onBar;
    simulator.duringRun = [&] {
        EXPECT_FALSE(handled);
        click("startButton");
        EXPECT_GT(std::exchange(paints.count, 0), 0);
        onBar.push_back(bar->value());
    };
    click("type_2");
    click("startButton");
    EXPECT_EQ(onBar, (std::vector<int>{0, 1}));
    EXPECT_EQ(simulator.runs, 1);
    EXPECT_EQ(simulator.choices.type, 2);
    EXPECT_EQ(simulator.choices.text, "/tmp/ClipboardFile.tmp");
    EXPECT_FALSE(simulator.choices.saveResults);
    EXPECT_EQ(bar->value(), 2);
    EXPECT_EQ(dialog.findChild<QLabel*>("indicator_1")->text(), "7");
    EXPECT_EQ(dialog.findChild<QPlainTextEdit*>("writtenText")->toPlainText(), "olá tudo ");
    EXPECT_TRUE(dialog.findChild<QPushButton*>("startButton")->isEnabled());
}

} // namespace
} // namespace ondrilo
