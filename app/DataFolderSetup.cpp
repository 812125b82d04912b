#include "app/DataFolderSetup.h"

#include "platform/FileStore.h"
#include "text/LineReader.h"

#include <optional>

namespace ondrilo {
namespace {

namespace fs = std::filesystem;

constexpr TextView kNotInstalled = "O Ondrilo não se encontra correctamente instalado neste computador!"_w;
constexpr std::size_t kPathLimit = 260;

/// The installation folder: the value "Path" of the settings. Nothing if there are no settings; empty if they
/// do not tell.
std::optional<fs::path> InstallationFolder(const UserFolders& folders) {
    for (const auto& folder : folders.systemConfiguration) {
        const auto settings = ReadFile(folder / "Norvane" / "Ondrilo 3.0" / "Settings");
        if (!settings.CouldOpen())
            continue;
        LineReader lines(settings.bytes, kPathLimit + 5);
        while (const auto line = lines.Next()) {
            FieldScanner fields(*line);
            if (fields.Word() != "Path")
                continue;
            // The path is UTF-8, as the desktop's own files are: it is not a text of ours.
            return fs::path(std::string(fields.Tail().value_or("").substr(0, kPathLimit)));
        }
        return fs::path();
    }
    return std::nullopt;
}

bool IsDelivered(const fs::path& file) {
    const auto extension = file.extension();
    return extension != ".exe" && extension != ".dll" && extension != ".isu";
}

void CopyDeliveredFiles(const fs::path& from, const fs::path& to) {
    std::error_code ignored;
    for (fs::directory_iterator entry(from, ignored), end; entry != end; entry.increment(ignored)) {
        std::error_code failed;
        if (entry->is_regular_file(failed) && IsDelivered(entry->path()))
            fs::copy_file(entry->path(), to / entry->path().filename(), fs::copy_options::overwrite_existing,
                          failed);
    }
}

} // namespace

Text PrepareDataFolder(const UserFolders& folders) {
    const auto installation = InstallationFolder(folders);
    if (!installation)
        return Text(kNotInstalled);
    const auto inner = folders.DataFolder();
    std::error_code failed;
    fs::create_directories(folders.userData, failed);
    if (fs::create_directory(inner.parent_path(), failed) && fs::create_directory(inner, failed) &&
        !installation->empty())
        CopyDeliveredFiles(*installation, inner);
    return {};
}

} // namespace ondrilo
