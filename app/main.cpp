#include "app/CTessivorApp.h"
#include "app/CTessivorView.h"
#include "app/SessionKindNotice.h"
#include "app/ui/QtDialogs.h"
#include "app/ui/QtOptionDialogs.h"
#include "app/ui/QtSessionWindows.h"
#include "app/ui/QuitSignals.h"
#include "dialogs/CLoggingViewerDlg.h"
#include "logging/CLog.h"
#include "logging/CMetrics.h"
#include "platform/linux/CanberraSoundPlayer.h"
#include "platform/linux/FlockInstanceLock.h"
#include "platform/linux/PosixProgramStarter.h"
#include "platform/qt/AccessibleBus.h"
#include "platform/qt/PortugueseTexts.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtQueuePump.h"
#include "platform/qt/QtTargetHook.h"
#include "platform/qt/QtTextMeasure.h"
#include "platform/qt/QtTimerService.h"
#include "platform/qt/SpeechDispatcher.h"
#include "platform/x11/X11KeyOutput.h"
#include "speech/CSpeechSynthesizer.h"

#include <QApplication>
#include <QTimer>

#include <clocale>
#include <cstdlib>

namespace ondrilo {
namespace {

constexpr int kLendingPause = 200; // milliseconds

std::string Variable(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value ? value : "";
}

/// One run of the program: which adapter serves which interface. Everything ends in the reverse order of its
/// start.
int Run(const std::filesystem::path& dataFolder, QtDesktop& desktop, QtMessageBoxes& boxes) {
    const DataFolder data(dataFolder);
    MessageQueue queue;
    QtClock clock;
    QtTimerService timers(clock);
    X11KeyOutput keys(X11KeyOutput::Lending::WhenAsked);
    QtTargetHook targetHook;
    keys.OnAnnounce(QtTargetHook::Expect);
    AccessibleBus accessibleText;
    CanberraSoundPlayer sounds([] { QApplication::beep(); });
    PosixProgramStarter programs;
    QtTextMeasure textMeasure;
    QtPictures pictures(data);
    QtClipboard clipboard;
    CMainFrame frame(queue, keys);
    QtSessionWindows windows({frame, queue, timers, sounds, keys, data, pictures});
    SpeechDispatcher speechEngine;
    CSpeechSynthesizer speech(speechEngine, data), cueSpeech(speechEngine, data);
    CLoggingViewerDlg logViewer(frame);
    CLog log(data, clock, boxes, logViewer);
    CMetrics metrics;
    NullServices without;
    const SessionServices services{.log = log,
                                   .metrics = metrics,
                                   .speech = speech,
                                   .cueSpeech = cueSpeech,
                                   .agent = without.agent,
                                   .gps = without.gps,
                                   .bluetooth = without.bluetooth,
                                   .context = without.context,
                                   .cooperation = without.cooperation,
                                   .userRecord = without.userRecord,
                                   .pictograms = without.pictograms};
    const DialogHost dialogHost{desktop, boxes, services.userRecord};
    QtDialogs dialogs(dialogHost);
    QtOptionDialogs optionDialogs(dialogHost);

    CTessivorView view({.dataFolder = data,
                        .queue = queue,
                        .clock = clock,
                        .timers = timers,
                        .desktop = desktop,
                        .keys = keys,
                        .targetHook = targetHook,
                        .accessibleText = accessibleText,
                        .boxes = boxes,
                        .dialogs = dialogs,
                        .optionDialogs = optionDialogs,
                        .clipboard = clipboard,
                        .sounds = sounds,
                        .speechEngine = speechEngine,
                        .programs = programs,
                        .textMeasure = textMeasure,
                        .pictureMeasure = pictures,
                        .frame = frame,
                        .windows = windows},
                       services);
    const auto handle = [&view](const MessageEvent& event) {
        view.Handle(event);
    };
    const QtQueuePump pump(queue, handle);
    targetHook.OnHandled([&queue, handle] { queue.Drain(handle); });
    const QuitSignals quitSignals([&frame] { frame.Close(); });
    view.OnInitialUpdate();
    // Not before: a window manager that is busy with changes of the keyboard would show the window late.
    QTimer lending;
    QObject::connect(&lending, &QTimer::timeout, &lending, [&keys, &lending] {
        if (!keys.LendNext())
            lending.stop();
    });
    lending.start(kLendingPause);
    QTimer::singleShot(0, &frame,
                       [&] { TellSessionKind(SessionKind::FromEnvironment(Variable), data, boxes, frame); });
    return QApplication::exec();
}

int Main(int count, char** words) {
    // Keys and text must be there for assistive programs that start after this one, too.
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    // Only as a program of the X server can the window stay without the focus and write in other programs.
    if (SessionKind::FromEnvironment(Variable).hasX && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    const QApplication application(count, words);
    PortugueseTexts texts;
    QApplication::installTranslator(&texts);
    // Numbers in files have a point, whatever the language.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName("ondrilo");
    QApplication::setDesktopFileName("ondrilo");
    QApplication::setQuitOnLastWindowClosed(false);

    QtDesktop desktop;
    QtMessageBoxes boxes(desktop);
    FlockInstanceLock lock;
    CTessivorApp app(UserFolders::FromEnvironment(Variable), lock, boxes);
    switch (app.InitInstance()) {
    case CTessivorApp::Start::AlreadyRunning:
        return EXIT_SUCCESS;
    case CTessivorApp::Start::Failed:
        return EXIT_FAILURE;
    case CTessivorApp::Start::Ready:
        break;
    }
    return Run(app.DataFolder(), desktop, boxes);
}

} // namespace
} // namespace ondrilo

int main(int count, char** words) {
    return ondrilo::Main(count, words);
}
