#include "app/ui/QuitSignals.h"

#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ondrilo {
namespace {

constexpr int kSignals[] = {SIGHUP, SIGINT, SIGTERM};

int writeEnd = -1; // all that a signal handler may touch

void OnSignal(int) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1);
}

} // namespace

QuitSignals::QuitSignals(std::function<void()> quit) {
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0)
        return;
    writeEnd = ends[0];
    notifier = std::make_unique<QSocketNotifier>(ends[1], QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, [this, quit = std::move(quit)] {
        char byte = 0;
        [[maybe_unused]] const auto taken = read(ends[1], &byte, 1);
        quit();
    });
    for (const int signal : kSignals)
        std::signal(signal, OnSignal);
}

QuitSignals::~QuitSignals() {
    if (!notifier)
        return;
    for (const int signal : kSignals)
        std::signal(signal, SIG_DFL);
    notifier.reset();
    close(ends[0]);
    close(ends[1]);
}

} // namespace ondrilo
