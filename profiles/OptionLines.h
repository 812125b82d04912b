#pragma once

#include "text/LineReader.h"
#include "text/Splitter.h"

/// The "KEY value" lines that profiles and system options are kept in. Every key is scanned for a value of
/// its own type; what does not scan gives 0 or the empty text.
namespace ondrilo {

/// Bytes of one read; a longer line becomes several.
inline constexpr std::size_t kOptionLineLimit = 499;

/// Calls `visit(key, line)` for each line that has a word.
template <typename Visit>
void ForEachOptionLine(TextView bytes, Visit visit) {
    LineReader lines(bytes, kOptionLineLimit);
    while (const auto line = lines.Next())
        if (const auto key = FieldScanner(*line).Word())
            visit(*key, *line);
}

[[nodiscard]] int IntegerOfLine(TextView line);
[[nodiscard]] double RealOfLine(TextView line);
[[nodiscard]] Text TextOfLine(TextView line);

/// A text field keeps its blanks as ";;;".
[[nodiscard]] inline Text BlanksToMarks(TextView text) {
    return Replace(text, " ", ";;;");
}
[[nodiscard]] inline Text MarksToBlanks(TextView text) {
    return Replace(text, ";;;", " ");
}

void AppendOption(Text& file, TextView key, TextView value);
void AppendOption(Text& file, TextView key, int value);
/// Six decimals and a decimal point, whatever the locale of the process.
void AppendOption(Text& file, TextView key, double value);

} // namespace ondrilo
