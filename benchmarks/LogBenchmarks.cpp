#include "benchmarks/Measures.h"
#include "logging/CLog.h"
#include "tests/support/FakeClock.h"
#include "tests/support/TemporaryFolder.h"

namespace ondrilo {
namespace {

struct NoBoxes : MessageBoxes {
    void Show(TextView) override {}
    [[nodiscard]] Answer AskYesNo(TextView, Answer) override { return Answer::No; }
    [[nodiscard]] Answer AskYesNoCancel(TextView) override { return Answer::No; }
};

struct Logs {
    TemporaryFolder folder;
    DataFolder data{folder.Path()};
    FakeClock clock;
    NoBoxes boxes;
    LogViewer viewer;
    CLog log{data, clock, boxes, viewer};
};

/// The longest line that is usual: a predicted sentence, with the most context that a line holds.
LogEvent LongEvent() {
    return {"",
            "KEY_DOWN_F1",
            "PREDICTED_SENTENCE_SELECTION_0_3_Quero_ir_passear_depois_do_jantar.",
            "10.2.14",
            "640.480",
            "Teclado principal",
            Text(500, 'a')};
}

/// With its way to the operating system, which is when it survives a crash of the program.
void WriteEvent(benchmark::State& state) {
    Logs logs;
    logs.log.Start("bench");
    const LogEvent event = LongEvent();
    Percentiles percentiles;
    while (state.KeepRunning())
        percentiles.Measure([&] { logs.log.Write(event); });
    percentiles.Report(state);
}
BENCHMARK(WriteEvent)->Unit(benchmark::kMicrosecond)->Iterations(50'000)->UseRealTime();

} // namespace
} // namespace ondrilo
