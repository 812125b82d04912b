#pragma once

#include "tests/conformance/Area.h"

namespace ondrilo::conformance {

struct Query {
    Text operation;
    Arguments arguments;
};

/// Fields are separated by tabs; bytes outside 0x20 to 0x7E and the backslash stand as "\xNN".
[[nodiscard]] Text Escape(TextView field);
[[nodiscard]] Text Unescape(TextView field);

/// A line "mark operation arguments... => expected values...".
[[nodiscard]] Query ParseQuery(TextView line);
/// "=>" and the values, each after a tab; "!skip" for nothing.
[[nodiscard]] Text FormatAnswer(const std::optional<Values>& values);

} // namespace ondrilo::conformance
