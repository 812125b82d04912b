#include "tools/Commands.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace ondrilo {
namespace {

/// Drawing needs fonts, so another program does it; this one stays free of them.
int DrawKeyboard(const Arguments& arguments) {
    const auto program = std::filesystem::read_symlink("/proc/self/exe").parent_path() / "ondrilo-draw";
    std::vector<std::string> words = arguments.Words();
    words.insert(words.begin(), program.string());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (auto& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    std::cout.flush();
    execv(program.c_str(), pointers.data());
    std::cerr << "ondrilo-tool: cannot start " << program.string() << ": " << std::strerror(errno) << "\n";
    return 1;
}

} // namespace

const Command kKeyboardCommand = {
    "keyboard", "lists or draws a keyboard as the program lays it out", {}, {}, DrawKeyboard, true};

} // namespace ondrilo
