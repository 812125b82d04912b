#include "benchmarks/Measures.h"
#include "platform/qt/SpeechDispatcher.h"
#include "speech/CSpeechSynthesizer.h"
#include "tests/support/PrivateSpeechService.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <functional>

namespace ondrilo {
namespace {

constexpr int kTexts = 1500;
constexpr int kPause = 2; // milliseconds from text to text, far faster than keys come

void RunUntil(const std::function<bool()>& condition) {
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

/// Speaks as keys do, all the way to the service. Time is that of the wall: a call that waited would cost
/// nothing otherwise.
void Speak(benchmark::State& state, SpeechDispatcher& engine) {
    const TemporaryFolder data;
    CSpeechSynthesizer voice(engine, DataFolder(data.Path()));
    voice.SelectVoice("Portuguese (Portugal) - recorder", {});
    Percentiles percentiles;
    for (auto _ : state)
        for (int i = 0; i < kTexts; ++i) {
            QElapsedTimer time;
            time.start();
            voice.Speak("palavra");
            percentiles.Add(static_cast<double>(time.nsecsElapsed()) / 1e3);
            for (; time.elapsed() < kPause; QThread::usleep(100))
                QCoreApplication::processEvents();
        }
    percentiles.Report(state);
}

void SpeaksToAHealthyService(benchmark::State& state) {
    PrivateSpeechService service;
    service.Start();
    SpeechDispatcher engine({service.Socket(), false});
    RunUntil([&] { return !engine.Voices().empty(); });
    Speak(state, engine);
}
BENCHMARK(SpeaksToAHealthyService)->Iterations(1)->Unit(benchmark::kMillisecond);

void SpeaksToAHangingService(benchmark::State& state) {
    PrivateSpeechService service;
    service.Start();
    SpeechDispatcher engine({service.Socket(), false});
    RunUntil([&] { return !engine.Voices().empty(); });
    service.Hang();
    Speak(state, engine);
}
BENCHMARK(SpeaksToAHangingService)->Iterations(1)->Unit(benchmark::kMillisecond);

void SpeaksWithoutAService(benchmark::State& state) {
    const PrivateSpeechService service;
    SpeechDispatcher engine({service.Socket(), false});
    Speak(state, engine);
}
BENCHMARK(SpeaksWithoutAService)->Iterations(1)->Unit(benchmark::kMillisecond);

/// What the list of thousands of voices costs a program that wants to react to keys meanwhile: the time of
/// one round of its event loop.
void ListsThousandsOfVoices(benchmark::State& state) {
    PrivateSpeechService service(true);
    service.Start();
    Percentiles percentiles;
    for (auto _ : state) {
        const SpeechDispatcher engine({service.Socket(), false});
        while (engine.Voices().empty()) {
            percentiles.Measure([] { QCoreApplication::processEvents(); });
            QThread::usleep(100);
        }
    }
    percentiles.Report(state);
}
BENCHMARK(ListsThousandsOfVoices)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace ondrilo

int main(int count, char** words) {
    const QCoreApplication application(count, words);
    benchmark::Initialize(&count, words);
    benchmark::RunSpecifiedBenchmarks();
}
