#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace ondrilo {

/// Where the desktop keeps what belongs to the machine and to the person.
struct UserFolders {
    std::vector<std::filesystem::path> systemConfiguration; ///< most important first
    std::filesystem::path userData;
    std::filesystem::path runtime; ///< emptied when the person logs out

    /// By the environment variables of the XDG base directories, with their usual fall-backs. `variable`
    /// gives the value of a variable, or the empty text. A relative folder counts as none.
    static UserFolders FromEnvironment(const std::function<std::string(const std::string&)>& variable);

    [[nodiscard]] std::filesystem::path DataFolder() const;
    [[nodiscard]] std::filesystem::path LockFile() const;
};

} // namespace ondrilo
