#pragma once

#include "tools/Arguments.h"

namespace ondrilo {

/// One command of ondrilo-tool. Each has a file of its own that defines its row ("const Command kXCommand =
/// {...};" after including this header); main.cpp lists them and shows the help.
struct Command {
    std::string_view name;
    std::string_view summary; ///< one line
    std::string_view details; ///< further lines of the help; may be empty
    std::span<const ToolOption> options;
    /// The exit code: 0 all well, 1 something was found or failed, 2 wrong use; what else a command needs is
    /// told in its details.
    int (*run)(const Arguments&);
    /// The words go to `run` as they are, help included.
    bool passesWords = false;
};

extern const Command kCheckCommand;
extern const Command kCorpusCommand;
extern const Command kKeyboardCommand;
extern const Command kLogCommand;
extern const Command kPredictCommand;
extern const Command kSimulateCommand;
extern const Command kVocabularyCommand;

} // namespace ondrilo
