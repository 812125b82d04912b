#include "profiles/OptionLines.h"

#include <charconv>
#include <limits>

namespace ondrilo {

namespace {

FieldScanner ValueOf(TextView line) {
    FieldScanner scanner(line);
    (void)scanner.Word();
    return scanner;
}

} // namespace

int IntegerOfLine(TextView line) {
    return ValueOf(line).Integer().value_or(0);
}

double RealOfLine(TextView line) {
    return ValueOf(line).Real().value_or(0.0);
}

Text TextOfLine(TextView line) {
    return Text(ValueOf(line).Word().value_or(TextView{}));
}

void AppendOption(Text& file, TextView key, TextView value) {
    file.append(key).append(" ").append(value).append("\n");
}

void AppendOption(Text& file, TextView key, int value) {
    AppendOption(file, key, std::to_string(value));
}

void AppendOption(Text& file, TextView key, double value) {
    constexpr int decimals = 6;
    char digits[std::numeric_limits<double>::max_exponent10 + decimals + 4];
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, decimals);
    AppendOption(file, key, TextView(digits, end.ptr));
}

} // namespace ondrilo
