#include "logging/TimeText.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace ondrilo {
namespace {

constexpr std::array kDays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr std::array kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

} // namespace

Text TimeText(const LocalTime& time) {
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%s %s %2d %02d:%02d:%02d %d",
                  kDays.at(static_cast<std::size_t>(time.weekday - 1)),
                  kMonths.at(static_cast<std::size_t>(time.month - 1)), time.day, time.hour, time.minute,
                  time.second, time.year);
    return text.data();
}

Text TimeForFileName(const LocalTime& time) {
    Text text = TimeText(time);
    std::replace(text.begin(), text.end(), ':', '-');
    return text;
}

} // namespace ondrilo
