#include "hook/Expectations.h"

#include <algorithm>

namespace ondrilo {

void Expectations::Add(std::uint8_t keycode, bool isPress, std::int32_t meaning) {
    const std::lock_guard lock(mutex);
    ForgetOld();
    expected.push_back({keycode, isPress, meaning, std::chrono::steady_clock::now()});
}

std::optional<std::int32_t> Expectations::Take(std::uint8_t keycode, bool isPress) {
    const std::lock_guard lock(mutex);
    ForgetOld();
    const auto found = std::ranges::find_if(
        expected, [&](const Expected& key) { return key.keycode == keycode && key.isPress == isPress; });
    if (found == expected.end())
        return std::nullopt;
    const auto meaning = found->meaning;
    // Ours come back in the order in which they went: what was told earlier will never come.
    expected.erase(expected.begin(), found + 1);
    return meaning;
}

void Expectations::ForgetOld() {
    constexpr std::chrono::seconds kPatience{1};
    const auto oldest = std::chrono::steady_clock::now() - kPatience;
    while (!expected.empty() && expected.front().since < oldest)
        expected.pop_front();
}

} // namespace ondrilo
