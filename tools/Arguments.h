#pragma once

#include "text/Text.h"

#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ondrilo {

/// One "--name" or "--name VALUE" of a command.
struct ToolOption {
    std::string_view name;  ///< with its dashes
    std::string_view value; ///< what stands for the value in the help; empty for a switch
    std::string_view help;
};

/// A mistake on the command line; the message is shown to the person.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What stands after the command's name, sorted into options and operands. File names are kept as the shell
/// gave them; texts travel as UTF-8 or, with "--encoding windows-1252", as plain bytes.
class Arguments {
  public:
    Arguments() = default;
    /// Keeps the words as they are.
    explicit Arguments(std::vector<std::string> words) : words(std::move(words)) {}
    /// Throws UsageError on an option that is not among `known` or lacks its value.
    Arguments(std::vector<std::string> words, std::span<const ToolOption> known);

    [[nodiscard]] bool Has(std::string_view option) const { return values.contains(option); }
    /// The value of an option, of the last one if it stands twice.
    [[nodiscard]] std::optional<std::string> Value(std::string_view option) const;
    /// As Value, but a missing option is a UsageError.
    [[nodiscard]] std::string Required(std::string_view option) const;
    /// A non-negative number; `standard` where the option is missing.
    [[nodiscard]] int Number(std::string_view option, int standard) const;
    [[nodiscard]] const std::vector<std::string>& Operands() const { return operands; }
    /// Everything as it was given.
    [[nodiscard]] const std::vector<std::string>& Words() const { return words; }

    /// Bytes of the terminal to the system's text, and back.
    [[nodiscard]] Text FromTerminal(std::string_view bytes) const;
    [[nodiscard]] std::string ToTerminal(TextView text) const;

  private:
    std::vector<std::string> words;
    std::map<std::string, std::string, std::less<>> values;
    std::vector<std::string> operands;
    bool rawBytes = false;
};

} // namespace ondrilo
