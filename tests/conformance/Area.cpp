#include "tests/conformance/Area.h"

#include "text/LineReader.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace ondrilo::conformance {

Text Real(double value) {
    std::array<char, 64> digits{};
    const int length = std::snprintf(digits.data(), digits.size(), "%.17g", value);
    return {digits.data(), static_cast<std::size_t>(length)};
}

std::optional<Values> Area::Answer(const Text& operation, const Arguments& arguments) const {
    const auto handler = handlers.find(operation);
    if (handler == handlers.end())
        return std::nullopt;
    return handler->second(arguments);
}

void Area::OnFile(const std::filesystem::path& folder) {
    On("file", [folder](const auto& a) { return ReadFile(a.In(folder)).bytes; });
    On("file_lines_sorted", [folder](const auto& a) {
        const FileBytes file = ReadFile(a.In(folder));
        LineReader reader(file.bytes, TextView::npos);
        Values lines;
        while (const auto line = reader.Next())
            lines.push_back(Text(*line) + "\n");
        std::sort(lines.begin(), lines.end());
        return lines;
    });
}

} // namespace ondrilo::conformance
