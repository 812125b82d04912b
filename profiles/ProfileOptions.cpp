#include "profiles/ProfileOptions.h"

#include <algorithm>
#include <cstdint>

namespace ondrilo {

namespace {

template <typename Belongs>
const ProfileOption& RowAt(std::size_t index, Belongs belongs) {
    return *std::ranges::find_if(
        kProfileOptions, [&](const ProfileOption& row) { return row.index == index && belongs(row); });
}

} // namespace

const ProfileOption* FindProfileOption(TextView key) {
    const auto found = std::ranges::find(kProfileOptions, key, &ProfileOption::key);
    return found == kProfileOptions.end() ? nullptr : &*found;
}

const ProfileOption& RowOf(IntegerOption option) {
    return RowAt(static_cast<std::size_t>(option), [](const ProfileOption& row) { return row.IsInteger(); });
}

const ProfileOption& RowOf(RealOption option) {
    return RowAt(static_cast<std::size_t>(option),
                 [](const ProfileOption& row) { return row.kind == OptionKind::Real; });
}

const ProfileOption& RowOf(TextOption option) {
    return RowAt(static_cast<std::size_t>(option), [](const ProfileOption& row) { return row.IsText(); });
}

int OnStep(int value, int step, int least) {
    if (step == 1)
        return value;
    if (value < 0)
        return least;
    const auto next = (static_cast<std::int64_t>(value) + step / 2) / step * step;
    return static_cast<int>(next <= kMostInteger ? next : next - step);
}

} // namespace ondrilo
