#pragma once

#include "text/Text.h"

#include <cstdint>
#include <filesystem>
#include <optional>

/// Whole files, read and replaced as one piece.
namespace ondrilo {

/// What tells one state of a file from another; all 0 stands for no file.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    /// Nanoseconds since 1970: of the last change of the bytes, and of the bytes or the rights.
    std::int64_t modified = 0;
    std::int64_t changed = 0;

    bool operator==(const FileIdentity&) const = default;
};

[[nodiscard]] FileIdentity IdentityOf(const std::filesystem::path& path);

enum class ReadState { Missing, Complete, Broken, Unchanged };

/// The bytes of a file. Broken: it exists but could not be read to its end; `bytes` then holds what came.
struct FileBytes {
    ReadState state = ReadState::Missing;
    bool opened = false;
    Text bytes;
    /// The state that was read; all 0 if it is not certain that a further change would show.
    FileIdentity identity;
    /// True when a reader may go on: what there is can be parsed. False for a file that is there but may not
    /// be opened.
    [[nodiscard]] bool CouldOpen() const { return opened; }
};

/// A file that still is the one of `known` is opened but not read: its state is Unchanged.
[[nodiscard]] FileBytes ReadFile(const std::filesystem::path& path, const FileIdentity& known = {});

/// Outcome of a save; `problem` is a sentence for the person, empty on success.
struct [[nodiscard]] SaveResult {
    Text problem;
    explicit operator bool() const { return problem.empty(); }
};

/// Replaces the file as one step: temporary file beside it, write, flush, fsync, rename. On failure the old
/// file stays as it was and nothing is left behind. A file at `path` that exists but cannot be read to its
/// end is set aside under a dated name first ("ana.pal.ilegivel-20310405-101112"). A write-protected file is
/// not replaced.
SaveResult ReplaceFile(const std::filesystem::path& path, TextView bytes);

} // namespace ondrilo
