#include "platform/AppendFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace ondrilo {
namespace {

bool Cut(int descriptor, std::size_t size) {
    return ::ftruncate(descriptor, static_cast<off_t>(size)) == 0;
}

/// A new file survives a power cut only if its name does.
void FlushFolder(const std::filesystem::path& folder) {
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    (void)::fsync(descriptor);
    (void)::close(descriptor);
}

} // namespace

SaveResult AppendFile::Open(const std::filesystem::path& newPath, std::size_t keep) {
    Close();
    path = newPath;
    // Non-blocking, or a pipe of that name would wait for a reader.
    descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0666);
    if (descriptor < 0)
        return Problem();
    if (!Cut(descriptor, keep)) {
        Close();
        return Problem();
    }
    size = keep;
    isNew = keep == 0;
    return {};
}

SaveResult AppendFile::Append(TextView piece) {
    ssize_t written = 0;
    do
        written = ::write(descriptor, piece.data(), piece.size());
    while (written < 0 && errno == EINTR);

    if (written == static_cast<ssize_t>(piece.size())) {
        size += piece.size();
        isFlushed = false;
        return {};
    }
    // Half a piece would spoil the next one too.
    if (!Cut(descriptor, size))
        Close();
    return Problem();
}

SaveResult AppendFile::Flush() {
    if (isFlushed)
        return {};
    isFlushed = true;
    if (::fdatasync(descriptor) != 0)
        return Problem();
    if (isNew)
        FlushFolder(path.parent_path());
    isNew = false;
    return {};
}

void AppendFile::Close() {
    if (IsOpen())
        (void)::close(descriptor);
    descriptor = -1;
    isFlushed = true;
}

SaveResult AppendFile::Problem() const {
    return {Text("Não foi possível guardar o ficheiro "_w) + FromUtf8(path.filename().string())};
}

SaveResult RemoveFile(const std::filesystem::path& path) {
    std::error_code error;
    std::filesystem::remove(path, error);
    if (!error)
        return {};
    return {Text("Não foi possível apagar o ficheiro "_w) + FromUtf8(path.filename().string())};
}

} // namespace ondrilo
