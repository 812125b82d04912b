#pragma once

#include "tools/Commands.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

namespace ondrilo {

/// How a command ended, and what it printed.
struct Ran {
    int code = 0;
    std::string out, problems;
};

/// Runs a command as the tool does, with what it reads.
inline Ran RunTool(const Command& command, std::vector<std::string> words, const std::string& input = {}) {
    std::vector<ToolOption> options(command.options.begin(), command.options.end());
    options.push_back({"--encoding", "NAME", ""});
    std::istringstream in(input);
    auto* const before = std::cin.rdbuf(in.rdbuf());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Ran ran;
    try {
        ran.code = command.run(Arguments(std::move(words), options));
    } catch (const UsageError&) {
        ran.code = 2;
    }
    ran.out = testing::internal::GetCapturedStdout();
    ran.problems = testing::internal::GetCapturedStderr();
    std::cin.rdbuf(before);
    std::cin.clear();
    return ran;
}

} // namespace ondrilo
