#include "text/LineReader.h"

#include "text/Splitter.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

namespace ondrilo {
namespace {

/// White space of the C library, wider than that of sentences.
constexpr auto IsScanSpace = [](char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
};

TextView SkipScanSpace(TextView text) {
    return {std::find_if_not(text.begin(), text.end(), IsScanSpace), text.end()};
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

std::optional<TextView> LineReader::Next() {
    if (rest.empty())
        return std::nullopt;
    if (!continued)
        ++lineNumber;

    const auto end = std::min(rest.find('\n'), rest.size());
    TextView line = rest.substr(0, end);
    if (end < rest.size() && line.ends_with('\r'))
        line.remove_suffix(1);

    continued = line.size() > limit;
    if (continued) {
        line = line.substr(0, limit);
        rest.remove_prefix(limit);
    } else {
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return line;
}

std::optional<TextView> FieldScanner::Word(std::size_t limit) {
    rest = SkipScanSpace(rest);
    if (rest.empty())
        return std::nullopt;
    const auto end = std::find_if(rest.begin(), rest.end(), IsScanSpace);
    const TextView word = TextView(rest.begin(), end).substr(0, limit);
    rest.remove_prefix(word.size());
    return word;
}

std::optional<int> FieldScanner::Integer() {
    rest = SkipScanSpace(rest);
    TextView digits = rest;
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+'))
        digits.remove_prefix(1);
    if (digits.empty() || !IsDigit(digits.front()))
        return std::nullopt;

    std::uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));

    const std::uint64_t largest =
        static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (negative ? 1 : 0);
    if (error != std::errc{} || magnitude > largest)
        magnitude = largest;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(negative ? 0 - magnitude : magnitude));
}

std::optional<double> FieldScanner::Real() {
    rest = SkipScanSpace(rest);
    TextView number = rest;
    if (number.starts_with('+') && !number.starts_with("+-"))
        number.remove_prefix(1);

    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::invalid_argument)
        return std::nullopt;
    const TextView read = number.substr(0, static_cast<std::size_t>(end - number.data()));
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    if (error == std::errc::result_out_of_range) {
        const bool tiny = read.find("e-") != TextView::npos || read.find("E-") != TextView::npos;
        value = tiny ? 0 : std::numeric_limits<double>::infinity();
        if (read.starts_with('-'))
            value = -value;
    }
    return value;
}

std::optional<TextView> FieldScanner::Tail() {
    rest = SkipScanSpace(rest);
    if (rest.empty())
        return std::nullopt;
    const TextView tail = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(tail.size());
    return tail;
}

Text BlanksToBars(TextView entry) {
    return Replace(entry, " ", "|");
}

Text BarsToBlanks(TextView entry) {
    return Replace(entry, "|", " ");
}

} // namespace ondrilo
