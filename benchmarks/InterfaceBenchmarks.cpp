#include "app/CTessivorView.h"
#include "app/ui/QtSessionWindows.h"
#include "benchmarks/Measures.h"
#include "platform/linux/PosixProgramStarter.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtQueuePump.h"
#include "platform/qt/QtTextMeasure.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeKeyOutput.h"
#include "tests/support/FakeOptionDialogs.h"
#include "tests/support/FakeSounds.h"
#include "tests/support/FakeSpeechEngine.h"
#include "tests/support/TemporaryFolder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTextEdit>

#include <functional>

namespace ondrilo {
namespace {

constexpr Milliseconds kTickTime{kTick}, kPressDotTime{300};

/// Keys arrive in the editor by way of the event loop, as from a desktop whose focus is there.
class EditorKeys : public FakeKeyOutput {
  public:
    void TypeCharacter(char c) override { Post(QEvent::KeyPress, c), Post(QEvent::KeyRelease, c); }
    void KeyDown(int code) override { Post(QEvent::KeyPress, MakeLower(static_cast<char>(code))); }
    void KeyUp(int code) override { Post(QEvent::KeyRelease, MakeLower(static_cast<char>(code))); }

    QTextEdit* editor = nullptr;

  private:
    void Post(QEvent::Type type, char c) {
        const int key = c == ' ' ? int(Qt::Key_Space) : QChar::fromLatin1(c).toUpper().unicode();
        QApplication::postEvent(editor,
                                new QKeyEvent(type, key, Qt::NoModifier, QString(QChar::fromLatin1(c))));
    }
};

/// Tells whether one of some widgets has been painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(const std::vector<QWidget*>& widgets) {
        for (auto* widget : widgets)
            widget->installEventFilter(this);
    }
    bool painted = false;

  private:
    bool eventFilter(QObject*, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

/// The running program with the delivered data. Time stands still but for the ticks that are asked for, so
/// that what is measured is work, never a wait for a countdown.
class RunningProgram {
  public:
    /// `options` stand over those of the delivered profile.
    explicit RunningProgram(TextView options = "") {
        std::filesystem::copy(ONDRILO_DELIVERED_DATA, folder.Path(),
                              std::filesystem::copy_options::recursive |
                                  std::filesystem::copy_options::overwrite_existing);
        folder.Write("generico.cfg", ReadFile(data.Path("generico.cfg")).bytes.append(options));
        desktop.foreground = frame.Id();
        desktop.ours = {frame.Id()};
        view.OnInitialUpdate();
        keys.editor = frame.findChild<QTextEdit*>("editor");
        RunUntil([this] { return keys.editor->isVisible(); });
        Tick(10); // now the editor is the target
        QApplication::processEvents();
    }
    ~RunningProgram() {
        frame.close();
        QApplication::sendPostedEvents();
    }

    static void RunUntil(const std::function<bool()>& done) {
        while (!done())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void Tick(int times) {
        for (int i = 0; i < times; ++i)
            timers.Fire(kTickTime);
    }
    void ForgetPressDots() {
        timers.Fire(kPressDotTime);
        QApplication::processEvents();
    }
    [[nodiscard]] QWidget* WidgetOf(COnScreenKeyIdentifier key) {
        return frame.findChild<QWidget*>(QString("key_%1_%2_%3").arg(key.line).arg(key.group).arg(key.key));
    }
    [[nodiscard]] QWidget* KeyOf(char c) {
        return WidgetOf(view.Keyboard().KeysByOutput(c == ' ' ? Text("Space") : Text(1, c)).front());
    }
    [[nodiscard]] std::vector<QWidget*> WidgetsOf(const KeyIdentifiers& identifiers) {
        std::vector<QWidget*> widgets;
        for (const auto& key : identifiers)
            widgets.push_back(WidgetOf(key));
        return widgets;
    }
    [[nodiscard]] std::vector<QWidget*> PredictionKeyWidgets() {
        return WidgetsOf(view.Keyboard().KeysOfType(KeyType::WordPrediction));
    }
    [[nodiscard]] std::vector<QWidget*> AllKeyWidgets() { return WidgetsOf(view.Keyboard().AllKeys()); }
    void KeyDown(char key) { keys.KeyDown(key); }
    void KeyUp(char key) { keys.KeyUp(key); }
    /// From the answer of the dialog that asks for the profile to keys that are painted.
    void OpenProfile(TextView name) {
        dialogs.chosenProfile = name;
        frame.findChild<QAction*>(QString("command_%1").arg(menu::OpenProfile))->trigger();
        RunUntil([&] { return view.Profiles().Active().properties.profileName == name; });
        QApplication::processEvents(); // lets all that is exposed be painted
    }
    [[nodiscard]] std::vector<Text> Predictions() {
        std::vector<Text> labels;
        for (const auto& key : view.Keyboard().KeysOfType(KeyType::WordPrediction))
            labels.push_back(view.Keyboard().Key(key).data.label);
        return labels;
    }
    [[nodiscard]] qsizetype Written() const { return keys.editor->toPlainText().size(); }

  private:
    TemporaryFolder folder;
    DataFolder data{folder.Path()};
    MessageQueue queue;
    QtClock clock;
    FakeTimers timers;
    FakeDesktop desktop;
    EditorKeys keys;
    FakeSounds sounds;
    FakeSpeechEngine speechEngine;
    PosixProgramStarter programs;
    QtMessageBoxes boxes{desktop};
    NullServices services;
    FakeDialogs dialogs;
    FakeOptionDialogs optionDialogs;
    QtClipboard clipboard;
    QtTextMeasure textMeasure;
    QtPictures pictures{data};
    CMainFrame frame{queue, keys};
    QtSessionWindows windows{{frame, queue, timers, sounds, keys, data, pictures}};
    TargetHook targetHook;
    AccessibleText accessibleText;
    CTessivorView view{{data, queue, clock, timers, desktop, keys, targetHook, accessibleText, boxes, dialogs,
                        optionDialogs, clipboard, sounds, speechEngine, programs, textMeasure, pictures,
                        frame, windows},
                       services.All()};
    QtQueuePump pump{queue, [this](const MessageEvent& event) {
                         view.Handle(event);
                     }};
};

void Press(QWidget* key) {
    const QPointF middle = key->rect().center();
    QMouseEvent event(QEvent::MouseButtonPress, middle, key->mapToGlobal(middle), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(key, &event);
}

/// What a person writes who never chooses a prediction, over and over.
char NextCharacter(std::size_t position) {
    constexpr TextView kWritten = "bom dia. tudo bem? eu quero comer uma sopa. onde fica a casa da ana? "
                                  "gosto muito de ti, obrigado. amanha vamos ao mar. ";
    return kWritten[position % kWritten.size()];
}

enum class Until { KeyPainted, PredictionsPainted };

/// Wall-clock time, since a key that waits for a timer is late too.
void PressKeys(benchmark::State& state, Until until) {
    RunningProgram program;
    Percentiles percentiles;
    std::size_t position = 0;
    while (state.KeepRunning()) {
        auto* key = program.KeyOf(NextCharacter(position++));
        const auto written = program.Written();
        const auto before = program.Predictions();
        const PaintWatch keyPaint({key}), predictionPaint(program.PredictionKeyWidgets());
        QElapsedTimer time;
        time.start();
        Press(key);
        RunningProgram::RunUntil([&] { return keyPaint.painted; });
        if (until == Until::KeyPainted)
            percentiles.Add(static_cast<double>(time.nsecsElapsed()) / 1e3);
        RunningProgram::RunUntil([&] { return program.Written() > written; });
        QApplication::processEvents();
        program.Tick(4);
        if (program.Predictions() != before) {
            RunningProgram::RunUntil([&] { return predictionPaint.painted; });
            if (until == Until::PredictionsPainted)
                percentiles.Add(static_cast<double>(time.nsecsElapsed()) / 1e3);
        }
        program.ForgetPressDots();
    }
    percentiles.Report(state);
    state.counters.erase("allocations"); // not counted here
}

/// From a switch going down to the repainted highlight; latency and tick are left out.
void SwitchUntilLit(benchmark::State& state) {
    constexpr char kSwitch = 'B';
    RunningProgram program("METODO_VARRIMENTO Passo-a-Passo\nTECLA_MANIPULO1 b\nTEMPO_DE_PREDICAO 50\n"
                           "LATENCIA_INTERRUPTORES_VARRIMENTO 0\nNUMERO_MAXIMO_CICLOS_VARRIMENTO 1000000\n");
    Percentiles percentiles;
    const auto widgets = program.AllKeyWidgets();
    while (state.KeepRunning()) {
        const PaintWatch paint(widgets);
        QElapsedTimer time;
        time.start();
        program.KeyDown(kSwitch);
        while (!paint.painted) {
            QApplication::processEvents();
            program.Tick(1);
        }
        QApplication::processEvents();
        percentiles.Add(static_cast<double>(time.nsecsElapsed()) / 1e3);
        program.KeyUp(kSwitch);
        QApplication::processEvents();
        program.Tick(2);
    }
    percentiles.Report(state);
    state.counters.erase("allocations"); // not counted here
}

/// Wall-clock time, with the dictionaries of both profiles.
void ChangeProfile(benchmark::State& state) {
    RunningProgram program;
    Percentiles percentiles;
    bool toSwitch = false;
    while (state.KeepRunning()) {
        QElapsedTimer time;
        time.start();
        program.OpenProfile((toSwitch = !toSwitch) ? "UmManipulo" : kGenericProfile);
        percentiles.Add(static_cast<double>(time.nsecsElapsed()) / 1e3);
    }
    percentiles.Report(state);
    state.counters.erase("allocations"); // not counted here
}

BENCHMARK(ChangeProfile)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(SwitchUntilLit)->Unit(benchmark::kMillisecond)->Iterations(1000);
BENCHMARK_CAPTURE(PressKeys, UntilTheKeyIsRepainted, Until::KeyPainted)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1000);
BENCHMARK_CAPTURE(PressKeys, UntilThePredictionsAreRepainted, Until::PredictionsPainted)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1000);

} // namespace
} // namespace ondrilo

int main(int count, char** words) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, words);
    QApplication::setQuitOnLastWindowClosed(false);
    benchmark::Initialize(&count, words);
    benchmark::RunSpecifiedBenchmarks();
}
