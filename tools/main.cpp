#include "tools/Commands.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace ondrilo {
namespace {

const Command* const kCommands[] = {&kCheckCommand,   &kCorpusCommand,   &kKeyboardCommand,  &kLogCommand,
                                    &kPredictCommand, &kSimulateCommand, &kVocabularyCommand};

constexpr ToolOption kCommonOptions[] = {
    {"--encoding", "NAME", "utf-8 (standard) or windows-1252: how texts travel on the terminal"},
    {"--help", "", "this help"},
};

void ShowCommands(std::ostream& out) {
    out << "Usage: ondrilo-tool COMMAND [OPTIONS]\n\nCommands:\n";
    for (const auto* command : kCommands)
        out << "  " << std::left << std::setw(12) << command->name << command->summary << "\n";
    out << "\n\"ondrilo-tool COMMAND --help\" tells the options of a command.\n";
}

void ShowOptions(std::ostream& out, std::span<const ToolOption> options) {
    for (const auto& option : options) {
        const auto name =
            std::string(option.name) + (option.value.empty() ? "" : " ") + std::string(option.value);
        out << "  " << std::left << std::setw(24) << name << option.help << "\n";
    }
}

void ShowHelp(const Command& command) {
    std::cout << "ondrilo-tool " << command.name << ": " << command.summary << "\n\n";
    if (!command.details.empty())
        std::cout << command.details << "\n\n";
    std::cout << "Options:\n";
    ShowOptions(std::cout, command.options);
    ShowOptions(std::cout, kCommonOptions);
}

int Run(const Command& command, std::vector<std::string> words) {
    if (command.passesWords)
        return command.run(Arguments(std::move(words)));
    std::vector<ToolOption> options(command.options.begin(), command.options.end());
    options.insert(options.end(), std::begin(kCommonOptions), std::end(kCommonOptions));
    const Arguments arguments(std::move(words), options);
    if (arguments.Has("--help")) {
        ShowHelp(command);
        return 0;
    }
    return command.run(arguments);
}

int Main(std::vector<std::string> words) {
    if (words.empty() || words[0] == "--help" || words[0] == "help") {
        ShowCommands(words.empty() ? std::cerr : std::cout);
        return words.empty() ? 2 : 0;
    }
    const auto* const* found = std::ranges::find(kCommands, words[0], [](const auto* c) { return c->name; });
    if (found == std::end(kCommands)) {
        std::cerr << "ondrilo-tool: no command \"" << words[0] << "\"\n\n";
        ShowCommands(std::cerr);
        return 2;
    }
    words.erase(words.begin());
    return Run(**found, std::move(words));
}

} // namespace
} // namespace ondrilo

int main(int count, char** words) {
    try {
        return ondrilo::Main({words + 1, words + count});
    } catch (const ondrilo::UsageError& error) {
        std::cerr << "ondrilo-tool: " << error.what() << "\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "ondrilo-tool: " << error.what() << "\n";
        return 1;
    }
}
