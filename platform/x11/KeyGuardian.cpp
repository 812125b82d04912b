#include "platform/x11/KeyGuardian.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <new>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ondrilo {
namespace {

// From here to the companion's end only what a signal handler may do is allowed: other threads of the parent
// may have held any lock at the moment of the fork.

void SendRelease(int server, std::uint8_t xtest, std::uint8_t keycode) {
    xcb_test_fake_input_request_t request{};
    request.major_opcode = xtest;
    request.minor_opcode = XCB_TEST_FAKE_INPUT;
    request.length = sizeof(request) / 4;
    request.type = XCB_KEY_RELEASE;
    request.detail = keycode;
    const auto written = write(server, &request, sizeof(request));
    static_cast<void>(written); // nobody is left who could be told
}

bool ReleaseHeld(int server, std::uint8_t xtest, const KeyGuardian::HeldKeys& held) {
    bool any = false;
    for (int keycode = 0; keycode < KeyGuardian::kKeycodes; ++keycode)
        if (held[keycode] != 0) {
            SendRelease(server, xtest, static_cast<std::uint8_t>(keycode));
            any = true;
        }
    return any;
}

void Pause() {
    constexpr timespec kPause{0, 100'000'000};
    nanosleep(&kPause, nullptr);
}

void KeepOnly(int first, int second) {
    const auto [low, high] = std::minmax({static_cast<unsigned>(first), static_cast<unsigned>(second)});
    if (low > 0)
        close_range(0, low - 1, 0);
    if (high > low + 1)
        close_range(low + 1, high - 1, 0);
    close_range(high + 1, ~0U, 0);
}

[[noreturn]] void Watch(int lifeline, int server, std::uint8_t xtest, const KeyGuardian::HeldKeys& held) {
    prctl(PR_SET_NAME, "ondrilo-keys");
    setsid();
    KeepOnly(lifeline, server);
    pollfd watched[] = {{lifeline, 0, 0}, {server, POLLIN, 0}};
    char ignored[1024];
    // The server sends every client a notice of each change of the keyboard; unread, they would pile up.
    while (poll(watched, 2, -1) >= 0 && watched[0].revents == 0)
        if (watched[1].revents != 0 && read(server, ignored, sizeof(ignored)) <= 0)
            _exit(0);
    // A press that our process sent in its last moment may reach the server after the first round.
    for (int round = 0; round < 3 && ReleaseHeld(server, xtest, held); ++round)
        Pause();
    _exit(0);
}

} // namespace

KeyGuardian::KeyGuardian() {
    if (!connection.Has(xcb_test_id))
        return;
    const auto xtest = xcb_get_extension_data(connection.Get(), &xcb_test_id)->major_opcode;
    connection.Synchronize(); // what the library had to send is sent: from now on the companion writes alone
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return;
    void* shared = mmap(nullptr, sizeof(HeldKeys), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED) {
        close(ends[0]);
        close(ends[1]);
        return;
    }
    held = reinterpret_cast<HeldKeys*>(shared); // fresh pages are zero, and so no key is held
    lifeline = ends[1];

    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    // The companion outlives the signals that end us.
    pthread_sigmask(SIG_SETMASK, &all, &before);
    companion = fork();
    if (companion == 0)
        Watch(ends[0], xcb_get_file_descriptor(connection.Get()), xtest, *held);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    close(ends[0]);
}

KeyGuardian::~KeyGuardian() {
    if (lifeline >= 0)
        close(lifeline);
    if (companion > 0)
        waitpid(companion, nullptr, 0);
    if (held)
        munmap(held, sizeof(HeldKeys));
}

} // namespace ondrilo
