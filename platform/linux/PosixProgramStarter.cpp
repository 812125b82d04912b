#include "platform/linux/PosixProgramStarter.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ondrilo {
namespace {

// Between fork and exec only what a signal handler may do is allowed: another thread may hold any lock.

[[noreturn]] void Become(const char* program, char* const* arguments) {
    sigset_t none;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, nullptr);
    signal(SIGPIPE, SIG_DFL); // what is ignored stays ignored in the new program
    const int nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, STDIN_FILENO);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    execv(program, arguments);
    _exit(EXIT_FAILURE);
}

} // namespace

void PosixProgramStarter::Start(TextView path) {
    std::string program = ToUtf8(path);
    char* const arguments[] = {program.data(), nullptr};
    // The child leaves at once and its own child belongs to nobody here, so that nobody has to wait for it.
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        if (fork() == 0)
            Become(program.c_str(), arguments);
        _exit(EXIT_SUCCESS);
    }
    if (child > 0)
        waitpid(child, nullptr, 0);
}

} // namespace ondrilo
