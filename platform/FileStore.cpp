#include "platform/FileStore.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ondrilo {
namespace {

namespace fs = std::filesystem;

/// An open file descriptor; closes it at the end.
class Descriptor {
  public:
    explicit Descriptor(int number) : number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    [[nodiscard]] bool IsOpen() const { return number >= 0; }
    [[nodiscard]] int Number() const { return number; }
    /// False if the system could not keep what was written.
    bool Close() {
        const int closing = number;
        number = -1;
        return closing < 0 || ::close(closing) == 0;
    }

  private:
    int number;
};

constexpr std::int64_t kSecond = 1'000'000'000; // nanoseconds
/// The coarsest clock of a file system: a file may be changed twice in this time without showing it.
constexpr std::int64_t kClockStep = 2 * kSecond;

std::int64_t Nanoseconds(const timespec& time) {
    return time.tv_sec * kSecond + time.tv_nsec;
}

FileIdentity IdentityFrom(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, Nanoseconds(status.st_mtim),
            Nanoseconds(status.st_ctim)};
}

bool IsSettled(const FileIdentity& identity) {
    timespec now{};
    return ::clock_gettime(CLOCK_REALTIME, &now) == 0 && identity.modified < Nanoseconds(now) - kClockStep;
}

bool ReadToEnd(const Descriptor& file, Text& bytes) {
    std::array<char, 65536> block{};
    for (;;) {
        const auto count = ::read(file.Number(), block.data(), block.size());
        if (count > 0)
            bytes.append(block.data(), static_cast<std::size_t>(count));
        else if (count == 0)
            return true;
        else if (errno != EINTR)
            return false;
    }
}

bool WriteAll(const Descriptor& file, TextView bytes) {
    while (!bytes.empty()) {
        const auto count = ::write(file.Number(), bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return false;
    }
    return true;
}

/// A file beside `path` that did not exist before; the name is short, since a long one must fit too.
fs::path TemporaryBeside(const fs::path& path) {
    static std::atomic<unsigned> last{0};
    return path.parent_path() /
           (".gravar-" + std::to_string(::getpid()) + "-" + std::to_string(++last) + ".tmp");
}

/// The rights of the file that is replaced; for a new one the kernel has applied the person's mask.
void KeepPermissions(const Descriptor& file, const fs::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0)
        ::fchmod(file.Number(), status.st_mode & 07777);
}

bool WriteNew(const fs::path& temporary, const fs::path& path, TextView bytes) {
    Descriptor file(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.IsOpen())
        return false;
    KeepPermissions(file, path);
    return WriteAll(file, bytes) && ::fsync(file.Number()) == 0 && file.Close();
}

bool FlushFolder(const fs::path& folder) {
    const Descriptor file(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some file systems cannot flush a folder and say so; there is nothing more to do then.
    return file.IsOpen() && (::fsync(file.Number()) == 0 || errno == EINVAL || errno == ENOTSUP);
}

bool SetAside(const fs::path& path) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 32> date{};
    (void)std::strftime(date.data(), date.size(), ".ilegivel-%Y%m%d-%H%M%S", &local);

    fs::path aside = path;
    aside += date.data();
    std::error_code error;
    for (int number = 2; fs::exists(aside, error); ++number)
        aside = path.string() + date.data() + "-" + std::to_string(number);
    fs::rename(path, aside, error);
    return !error;
}

/// A file that is only a link is replaced where it really lies.
fs::path Resolved(const fs::path& path) {
    std::error_code error;
    fs::path real = fs::canonical(path, error);
    return error ? path : real;
}

bool IsWriteProtected(const fs::path& path) {
    return ::access(path.c_str(), W_OK) != 0 && errno != ENOENT;
}

bool Replace(const fs::path& path, TextView bytes) {
    if (ReadFile(path).state == ReadState::Broken) {
        if (!SetAside(path))
            return false;
    } else if (IsWriteProtected(path)) {
        return false;
    }

    const fs::path temporary = TemporaryBeside(path);
    if (WriteNew(temporary, path, bytes) && ::rename(temporary.c_str(), path.c_str()) == 0)
        return FlushFolder(path.parent_path());
    ::unlink(temporary.c_str());
    return false;
}

} // namespace

FileIdentity IdentityOf(const fs::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? IdentityFrom(status) : FileIdentity();
}

FileBytes ReadFile(const fs::path& path, const FileIdentity& known) {
    // Non-blocking, or a pipe of that name would wait for a writer.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.IsOpen())
        return {errno == ENOENT || errno == ENOTDIR ? ReadState::Missing : ReadState::Broken, false, {}, {}};
    struct stat status {};
    if (::fstat(file.Number(), &status) != 0 || S_ISDIR(status.st_mode))
        return {ReadState::Broken, false, {}, {}};
    const FileIdentity identity = IdentityFrom(status);
    if (identity == known)
        return {ReadState::Unchanged, true, {}, known};

    FileBytes read{ReadState::Complete, true, {}, {}};
    if (S_ISREG(status.st_mode))
        read.bytes.reserve(static_cast<std::size_t>(status.st_size));
    if (!ReadToEnd(file, read.bytes))
        read.state = ReadState::Broken;
    else if (IsSettled(identity))
        read.identity = identity;
    return read;
}

SaveResult ReplaceFile(const fs::path& path, TextView bytes) {
    if (Replace(Resolved(path), bytes))
        return {};
    return {Text("Não foi possível guardar o ficheiro "_w) + FromUtf8(path.filename().string())};
}

} // namespace ondrilo
