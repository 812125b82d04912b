#include "platform/FileStore.h"
#include "tools/CheckDictionaries.h"
#include "tools/CheckKeyboards.h"
#include "tools/CheckOptions.h"
#include "tools/Commands.h"

#include <algorithm>
#include <iostream>

namespace ondrilo {
namespace {

constexpr ToolOption kOptions[] = {{"--data", "DIR", "the data folder"}};

std::vector<Text> ProfileNames(const DataFolder& folder) {
    const auto list = ReadFile(folder.Path("utils"));
    std::vector<Text> names{"generico"};
    for (const auto name : WordsOf(list.bytes))
        names.emplace_back(name);
    return names;
}

int Check(const Arguments& arguments) {
    const DataFolder folder(arguments.Required("--data"));
    if (!std::filesystem::is_directory(folder.Path()))
        throw std::runtime_error("there is no folder " + folder.Path().string());
    const auto profiles = ProfileNames(folder);
    CheckReport report;
    CheckDictionaries(folder, profiles, report);
    CheckOptions(folder, profiles, report);
    CheckKeyboards(folder, profiles, report);
    std::sort(report.begin(), report.end());
    // A profile that is listed twice is found twice.
    report.erase(std::unique(report.begin(), report.end()), report.end());
    for (const auto& [file, line, reason] : report) {
        std::cout << arguments.ToTerminal(file) << ':';
        if (line > 0)
            std::cout << line << ':';
        std::cout << ' ' << arguments.ToTerminal(reason) << '\n';
    }
    return report.empty() ? 0 : 1;
}

} // namespace

const Command kCheckCommand = {"check", "names every line of the data that the program would skip or misread",
                               "Looks at dictionaries, abbreviations, profiles, system options and "
                               "keyboards. Prints \"file:line: reason\"\n"
                               "for each finding; the exit code is 1 if there is any.",
                               kOptions, Check};

} // namespace ondrilo
