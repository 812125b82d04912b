#include "app/UserFolders.h"

#include <sstream>

namespace ondrilo {

UserFolders UserFolders::FromEnvironment(const std::function<std::string(const std::string&)>& variable) {
    auto folder = [&variable](const std::string& name, const std::filesystem::path& fallback) {
        const std::filesystem::path value = variable(name);
        return value.is_absolute() ? value : fallback;
    };
    UserFolders folders;
    std::istringstream list(variable("XDG_CONFIG_DIRS"));
    for (std::string entry; std::getline(list, entry, ':');)
        if (std::filesystem::path(entry).is_absolute())
            folders.systemConfiguration.emplace_back(entry);
    if (folders.systemConfiguration.empty())
        folders.systemConfiguration.emplace_back("/etc/xdg");
    folders.userData = folder("XDG_DATA_HOME", std::filesystem::path(variable("HOME")) / ".local" / "share");
    folders.runtime = folder("XDG_RUNTIME_DIR", folders.userData);
    return folders;
}

std::filesystem::path UserFolders::DataFolder() const {
    return userData / "Norvane" / "Ondrilo 3.0";
}

std::filesystem::path UserFolders::LockFile() const {
    return runtime / "ondrilo.lock";
}

} // namespace ondrilo
