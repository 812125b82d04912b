#include "tests/conformance/Area.h"

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

} // namespace ondrilo::conformance
