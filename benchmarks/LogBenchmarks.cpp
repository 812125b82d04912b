#include "app/EventWriter.h"
#include "benchmarks/AllocationCounter.h"
#include "benchmarks/Measures.h"
#include "logging/CLog.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFrameWindow.h"
#include "tests/support/FakeKeyOutput.h"
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

/// Without a log nothing is built for one.
void WriteWithoutALog(benchmark::State& state) {
    Logs logs;
    Journal journal;
    const FakeFrameWindow frame(journal);
    const FakeKeyOutput keys;
    FakeDialogs dialogs;
    const CUserProfileSet profiles(logs.data, logs.boxes, dialogs);
    const Targets targets;
    const COnScreenKeyboard keyboard;
    SessionState session;
    EventWriter events(frame, keys, logs.log, profiles, targets, keyboard, session);
    const auto before = Allocations();
    while (state.KeepRunning()) {
        events.Action(ActionOrigin::Key(vk::F1), "TEXT_KEY_SELECTION_of_a_long_text",
                      COnScreenKeyIdentifier());
        events.TypedKey(vk::F1, false);
        events.Character('a');
        events.UpdateContext();
    }
    if (Allocations() > before)
        state.SkipWithError("something is built although no log is open");
}
BENCHMARK(WriteWithoutALog);

} // namespace
} // namespace ondrilo
