#include "platform/linux/PosixProgramStarter.h"

#include "text/CaseFolding.h"
#include "text/Splitter.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

namespace ondrilo {
namespace {

namespace fs = std::filesystem;

using Command = std::vector<std::string>;

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// The folders in which the desktop looks for applications, the person's own first.
std::vector<fs::path> DataFolders() {
    const auto own = Variable("XDG_DATA_HOME");
    const auto system = Variable("XDG_DATA_DIRS");
    std::vector<fs::path> folders{own.empty() ? fs::path(Variable("HOME")) / ".local" / "share"
                                              : fs::path(own)};
    for (const auto& folder : Split(system.empty() ? "/usr/local/share:/usr/share" : system, ":", kAllTokens))
        folders.emplace_back(folder);
    return folders;
}

std::string FindApplication(const std::string& name) {
    if (name.find('/') != std::string::npos)
        return name;
    for (const auto& folder : DataFolders()) {
        const auto file = folder / "applications" / name;
        std::error_code unreachable;
        if (folder.is_absolute() && fs::is_regular_file(file, unreachable))
            return file.string();
    }
    return name;
}

/// What to run, and what to run instead where that is impossible.
std::vector<Command> CommandsFor(TextView path) {
    const auto program = ToUtf8(path);
    if (MakeLower(path).ends_with(".desktop"))
        return {{"/usr/bin/gio", "launch", FindApplication(program)}};
    if (path.ends_with(".sh"))
        return {{program}, {"/bin/sh", program}};
    return {{program}};
}

using Arguments = std::vector<char*>;

Arguments ArgumentsOf(Command& command) {
    Arguments arguments;
    for (auto& word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    return arguments;
}

// Between fork and exec only what a signal handler may do is allowed: another thread may hold any lock.

[[noreturn]] void BecomeFirstThatRuns(const std::vector<Arguments>& candidates) {
    sigset_t none;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, nullptr);
    signal(SIGPIPE, SIG_DFL); // what is ignored stays ignored in the new program
    const int nothing = open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nothing, standard);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    for (const auto& arguments : candidates)
        execv(arguments.front(), arguments.data());
    _exit(EXIT_FAILURE);
}

} // namespace

void PosixProgramStarter::Start(TextView path) {
    auto commands = CommandsFor(path);
    std::vector<Arguments> candidates;
    for (auto& command : commands)
        candidates.push_back(ArgumentsOf(command));
    // The child leaves at once and its own child belongs to nobody here, so that nobody has to wait for it.
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        if (fork() == 0)
            BecomeFirstThatRuns(candidates);
        _exit(EXIT_SUCCESS);
    }
    if (child > 0)
        waitpid(child, nullptr, 0);
}

} // namespace ondrilo
