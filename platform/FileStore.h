#pragma once

#include "text/Text.h"

#include <filesystem>
#include <optional>

/// Whole files, read and replaced as one piece.
namespace ondrilo {

enum class ReadState { Missing, Complete, Broken };

/// The bytes of a file. Broken: it exists but could not be read to its end; `bytes` then holds what came.
struct FileBytes {
    ReadState state = ReadState::Missing;
    bool opened = false;
    Text bytes;
    /// True when a reader may go on: what there is can be parsed. False for a file that is there but may not
    /// be opened.
    [[nodiscard]] bool CouldOpen() const { return opened; }
};

[[nodiscard]] FileBytes ReadFile(const std::filesystem::path& path);

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
