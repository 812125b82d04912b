#pragma once

#include "text/Text.h"

#include <optional>
#include <vector>

namespace ondrilo {

/// Reads a whole file's bytes line by line as the data formats ask: a line is at most `limit` bytes (its line
/// feed not counted) and a longer one becomes several reads; CRLF and LF both end a line.
class LineReader {
  public:
    LineReader(TextView bytes, std::size_t limit) : rest(bytes), limit(limit) {}
    /// The next read without its line end, or nothing at the end of the file.
    std::optional<TextView> Next();
    /// Number of the physical line, from 1, that the last read came from.
    [[nodiscard]] int LineNumber() const { return lineNumber; }

  private:
    TextView rest;
    std::size_t limit;
    int lineNumber = 0;
    bool continued = false;
};

/// Scans one line with the meaning of the C library's patterns: white space separates words; a number is an
/// optional sign and digits; what stands after a number in the same word stays for the next field.
class FieldScanner {
  public:
    explicit FieldScanner(TextView line) : rest(line) {}
    /// "%s": the next word, at most `limit` bytes.
    std::optional<TextView> Word(std::size_t limit = static_cast<std::size_t>(-1));
    /// "%d": 32-bit signed; a number too large for 64 bits is taken as the nearest, then the low 32 bits
    /// count.
    std::optional<int> Integer();
    /// "%Lf": a real with a point as decimal mark, in any locale.
    std::optional<double> Real();
    /// " %[^\n]": the rest of the line, leading white space skipped; nothing if it is empty.
    std::optional<TextView> Tail();

  private:
    TextView rest;
};

/// Dictionary files write the blanks inside an entry as "|"; there is no escape.
[[nodiscard]] Text BlanksToBars(TextView entry);
[[nodiscard]] Text BarsToBlanks(TextView entry);

} // namespace ondrilo
