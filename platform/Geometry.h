#pragma once

#include <cstdint>

namespace ondrilo {

/// Screen or window coordinates in logical pixels, y downwards.
struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Rectangle&) const = default;
    [[nodiscard]] bool Contains(Point p) const {
        return p.x >= x && p.y >= y && p.x < x + width && p.y < y + height;
    }
};

/// 0x00BBGGRR, as the files hold it; -1 in a keyboard file selects the profile's colour.
using Color = std::int32_t;
inline constexpr Color kDefaultColor = -1;

} // namespace ondrilo
