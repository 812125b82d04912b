#pragma once

#include "text/Text.h"

#include <filesystem>
#include <vector>

namespace ondrilo {

/// The flat folder of one person's data. Names are Windows-1252; in the file system they are UTF-8. "\" in a
/// name (pictograms: "CAT_IMG_Casa\porta.bmp") separates folder and file.
class DataFolder {
  public:
    explicit DataFolder(std::filesystem::path folder) : folder(std::move(folder)) {}

    [[nodiscard]] const std::filesystem::path& Path() const { return folder; }
    /// The path of `name` in the folder, whether it exists or not.
    [[nodiscard]] std::filesystem::path Path(TextView name) const;
    /// As Path, but if there is no such file, one whose name differs only in case is taken: for pictures,
    /// keyboards and sounds, never for profile files.
    [[nodiscard]] std::filesystem::path Find(TextView name) const;
    /// Names of the files that end in `extension` (".tec"; case does not matter), sorted without regard to
    /// case; for `extension` empty, all files.
    [[nodiscard]] std::vector<Text> Files(TextView extension) const;
    /// Names of the folders that begin with `prefix`, sorted likewise.
    [[nodiscard]] std::vector<Text> Folders(TextView prefix) const;

  private:
    std::filesystem::path folder;
};

} // namespace ondrilo
