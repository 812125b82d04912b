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
    // A press of the person's may be read when the next release and press of the same key by us are told
    // already: what comes first must be what was told first.
    const auto found = std::ranges::find(expected, keycode, &Expected::keycode);
    if (found == expected.end() || found->isPress != isPress)
        return std::nullopt;
    const auto meaning = found->meaning;
    expected.erase(found);
    return meaning;
}

void Expectations::ForgetOld() {
    constexpr std::chrono::seconds kPatience{1};
    const auto oldest = std::chrono::steady_clock::now() - kPatience;
    while (!expected.empty() && expected.front().since < oldest)
        expected.pop_front();
}

} // namespace ondrilo
