#pragma once

#include "platform/AppendFile.h"
#include "prediction/Lesson.h"

#include <array>

namespace ondrilo {

/// What a profile learned while its person wrote and its files do not yet hold, in the file "<name>.jrn"
/// beside them, so that a crash costs nothing. A line a step; before lessons for a file that is new or was
/// written since the last line, one with its size and time: lessons count only as long as that file is the
/// same. Whoever saves a file thereby ends its lessons, even if the journal itself is left behind.
class LearningJournal {
  public:
    /// Goes over to a profile whose files were just loaded, and teaches the dictionary again what they lack.
    void Open(const DataFolder& folder, TextView name, CDictionary& dictionary);
    /// One write.
    SaveResult Append(std::span<const Lesson> lessons);
    /// Waits for the disk if something was appended since.
    SaveResult Flush() { return file.Flush(); }
    /// Lets go of the file, which stays for the next Open.
    void Close() { file.Close(); }
    /// To be called when all that was learned is saved.
    SaveResult Remove();

  private:
    /// The state of one of the profile's files.
    struct Version {
        std::int64_t size = 0;
        std::int64_t modified = 0;
        bool operator==(const Version&) const = default;
    };
    using Versions = std::array<std::optional<Version>, Lesson::kKinds>;

    /// False if nothing was there to be learned again.
    bool Replay(TextView lines, CDictionary& dictionary) const;
    [[nodiscard]] Version CurrentVersion(Lesson::Kind kind) const;
    [[nodiscard]] static bool ReadVersion(TextView line, Versions& versions);
    void NoteVersion(Lesson::Kind kind, Text& piece);

    std::filesystem::path path;
    /// The file that takes up each kind of lesson.
    std::array<std::filesystem::path, Lesson::kKinds> told;
    Versions noted;
    AppendFile file;
    /// Bytes of whole lines.
    std::size_t size = 0;
};

} // namespace ondrilo
