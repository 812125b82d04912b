#pragma once

#include "platform/DataFolder.h"
#include "text/LineReader.h"

#include <optional>
#include <tuple>
#include <vector>

/// What `check` finds, and the small readers that its parts share.
namespace ondrilo {

/// A line that the program would skip or misread; line 0 is the file as a whole.
struct CheckFinding {
    Text file;
    int line = 0;
    Text reason;
    bool operator==(const CheckFinding&) const = default;
    bool operator<(const CheckFinding& other) const {
        return std::tie(file, line, reason) < std::tie(other.file, other.line, other.reason);
    }
};
using CheckReport = std::vector<CheckFinding>;

/// Goes through the lines of one file and tells what is wrong with them. Lines over the reader's limit or
/// in UTF-8 are told here, and so is a file that cannot be read to its end.
class CheckedFile {
  public:
    CheckedFile(CheckReport& report, const DataFolder& folder, TextView name,
                std::size_t lineLimit = static_cast<std::size_t>(-1));
    CheckedFile(const CheckedFile&) = delete;
    CheckedFile& operator=(const CheckedFile&) = delete;

    std::optional<TextView> Next();
    /// About the line that was read last.
    void Tell(Text reason);
    [[nodiscard]] const Text& Name() const { return name; }
    [[nodiscard]] int Line() const { return lines.LineNumber(); }

  private:
    CheckReport& report;
    Text name;
    Text bytes;
    std::size_t limit;
    LineReader lines;
    int lastTooLong = 0;
};

/// The words of a line as the readers see them.
[[nodiscard]] std::vector<TextView> WordsOf(TextView line);
/// What is wrong with a word that should be an integer; empty if nothing is.
[[nodiscard]] Text IntegerProblem(TextView word);
[[nodiscard]] Text Quoted(TextView text);

} // namespace ondrilo
