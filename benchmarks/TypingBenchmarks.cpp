#include "benchmarks/Measures.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtTargetHook.h"
#include "platform/x11/X11KeyOutput.h"
#include "targets/CGenericWordProcessor.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTextEdit>
#include <QThread>

#include <cstdio>

namespace ondrilo {
namespace {

constexpr auto kTargetRole = "--target";

/// Another program with a text box, which is this one in another role. It tells its window's number.
class OtherProgram {
  public:
    explicit OtherProgram(Desktop& desktop) {
        process.start(QApplication::applicationFilePath(), {kTargetRole});
        process.waitForReadyRead();
        window = process.readLine().trimmed().toULongLong();
        while (desktop.ForegroundWindow() != window) {
            desktop.Activate(window);
            QApplication::processEvents(QEventLoop::AllEvents, 50);
            QThread::msleep(50);
        }
    }
    ~OtherProgram() {
        process.kill();
        process.waitForFinished();
    }

    WindowId window = 0;

  private:
    QProcess process;
};

/// What a session has of other programs.
struct Typist {
    Typist() {
        keys.OnAnnounce([this](Keycode keycode, bool isPress, std::int32_t meaning) {
            hook.Expect(keycode, isPress, meaning);
        });
        hook.OnHandled([this] { queue.Clear(); });
        keyboard.Initialize();
    }
    [[nodiscard]] CGenericWordProcessor NewTarget() {
        return {other.window, keyboard, {hook, accessible, desktop, queue, [] {
                                         }}};
    }

    QtDesktop desktop;
    OtherProgram other{desktop};
    X11KeyOutput keys;
    QtTargetHook hook;
    AccessibleText accessible;
    MessageQueue queue;
    CKeyboard keyboard{keys};
};

/// Lets everybody handle what they got, so that it does not disturb the next measurement.
void Rest() {
    QElapsedTimer time;
    for (time.start(); time.elapsed() < 20;)
        QApplication::processEvents(QEventLoop::AllEvents, 5);
}

template <typename Call>
double WallMicroseconds(Call call) {
    QElapsedTimer time;
    time.start();
    call();
    return static_cast<double>(time.nsecsElapsed()) / 1e3;
}

/// From the choice of the word to the last key sent, waits for the server included.
void TypeAWord(benchmark::State& state) {
    constexpr TextView kTwelveCharacters = "comunicações"_w;
    Typist typist;
    auto target = typist.NewTarget();
    if (!target.Create())
        return state.SkipWithError("the other program cannot be watched");
    Rest();
    Percentiles percentiles;
    while (state.KeepRunning()) {
        percentiles.Add(WallMicroseconds([&] { target.WriteWord(kTwelveCharacters); }));
        typist.keyboard.TapKey("Enter");
        Rest();
    }
    target.Destroy();
    percentiles.Report(state);
    state.counters.erase("allocations"); // not counted here
}

void AttachAProgram(benchmark::State& state) {
    constexpr int kLastFunctionKey = vk::F1 + 11;
    Typist typist;
    Percentiles percentiles;
    while (state.KeepRunning()) {
        auto target = typist.NewTarget();
        percentiles.Add(WallMicroseconds([&] {
            static_cast<void>(target.Create());
            target.BlockKeys(vk::F1, kLastFunctionKey);
        }));
        Rest();
        target.Destroy();
        Rest();
    }
    percentiles.Report(state);
    state.counters.erase("allocations"); // not counted here
}

BENCHMARK(TypeAWord)->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK(AttachAProgram)->Unit(benchmark::kMillisecond)->Iterations(100);

int ShowTarget() {
    QTextEdit box;
    box.show();
    std::printf("%llu\n", static_cast<unsigned long long>(box.winId()));
    (void)std::fflush(stdout);
    return QApplication::exec();
}

} // namespace
} // namespace ondrilo

int main(int count, char** words) {
    const QApplication application(count, words);
    if (count > 1 && std::string_view(words[1]) == ondrilo::kTargetRole)
        return ondrilo::ShowTarget();
    benchmark::Initialize(&count, words);
    benchmark::RunSpecifiedBenchmarks();
}
