#include "platform/DataFolder.h"

#include "text/CaseFolding.h"
#include "text/Splitter.h"

#include <functional>

namespace ondrilo {
namespace {

namespace fs = std::filesystem;

constexpr TextView kFolderSeparators = "\\/";

/// The name in Windows-1252, or nothing if that cannot hold it: no file of ours could name it again.
std::optional<Text> NameOf(const fs::directory_entry& entry) {
    const std::string onDisk = entry.path().filename().string();
    Text name = FromUtf8(onDisk);
    if (ToUtf8(name) != onDisk)
        return std::nullopt;
    return name;
}

bool BeforeWithoutCase(TextView first, TextView second) {
    const Text foldedFirst = MakeLower(first);
    const Text foldedSecond = MakeLower(second);
    return foldedFirst != foldedSecond ? foldedFirst < foldedSecond : first < second;
}

std::vector<Text> SortedNames(const fs::path& folder,
                              const std::function<bool(const fs::directory_entry&, TextView)>& belongs) {
    std::vector<Text> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (auto name = NameOf(*entry); name && belongs(*entry, *name))
            names.push_back(std::move(*name));
    std::sort(names.begin(), names.end(), BeforeWithoutCase);
    return names;
}

fs::path FindInside(const fs::path& folder, const Text& name) {
    std::error_code ignored;
    fs::path exact = folder / ToUtf8(name);
    if (fs::exists(exact, ignored))
        return exact;
    const Text folded = MakeLower(name);
    const auto candidates = SortedNames(folder, [&folded](const fs::directory_entry&, TextView candidate) {
        return MakeLower(candidate) == folded;
    });
    return candidates.empty() ? exact : folder / ToUtf8(candidates.front());
}

} // namespace

fs::path DataFolder::Path(TextView name) const {
    fs::path path = folder;
    for (const Text& part : Split(name, kFolderSeparators))
        path /= ToUtf8(part);
    return path;
}

fs::path DataFolder::Find(TextView name) const {
    fs::path path = folder;
    for (const Text& part : Split(name, kFolderSeparators))
        path = FindInside(path, part);
    return path;
}

std::vector<Text> DataFolder::Files(TextView extension) const {
    const Text ending = MakeLower(extension);
    return SortedNames(folder, [&ending](const fs::directory_entry& entry, TextView name) {
        std::error_code ignored;
        return MakeLower(name).ends_with(ending) && entry.is_regular_file(ignored);
    });
}

std::vector<Text> DataFolder::Folders(TextView prefix) const {
    return SortedNames(folder, [prefix](const fs::directory_entry& entry, TextView name) {
        std::error_code ignored;
        return name.starts_with(prefix) && entry.is_directory(ignored);
    });
}

} // namespace ondrilo
