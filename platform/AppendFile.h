#pragma once

#include "platform/FileStore.h"

namespace ondrilo {

/// A file that only grows, a piece at a time. What was appended outlives the program at once; it outlives the
/// machine after Flush.
class AppendFile {
  public:
    AppendFile() = default;
    AppendFile(const AppendFile&) = delete;
    AppendFile& operator=(const AppendFile&) = delete;
    ~AppendFile() { Close(); }

    /// Opens the file, or makes it, and cuts it after its first `keep` bytes.
    SaveResult Open(const std::filesystem::path& path, std::size_t keep);
    [[nodiscard]] bool IsOpen() const { return descriptor >= 0; }
    /// One write; of a piece that does not fit on the disk nothing stays in the file.
    SaveResult Append(TextView piece);
    /// Waits until the disk has all that was appended; costs nothing if it has.
    SaveResult Flush();
    void Close();

  private:
    [[nodiscard]] SaveResult Problem() const;

    std::filesystem::path path;
    int descriptor = -1;
    std::size_t size = 0;
    bool isFlushed = true;
    bool isNew = false;
};

/// A file that is not there counts as removed.
SaveResult RemoveFile(const std::filesystem::path& path);

} // namespace ondrilo
