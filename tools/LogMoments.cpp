#include "tools/LogMoments.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace ondrilo {
namespace {

using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

/// The number that fills the whole text, leading blanks apart; -1 if there is none.
int Number(TextView text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    int number = -1;
    const auto* end = text.data() + text.size();
    return std::from_chars(text.data(), end, number).ptr == end ? number : -1;
}

std::optional<LogDay> MakeDay(int y, int m, int d) {
    constexpr int lastYear = 9999;
    if (y < 1 || y > lastYear || m < 1 || d < 1)
        return std::nullopt;
    const year_month_day date{year(y), month(static_cast<unsigned>(m)),
                              std::chrono::day(static_cast<unsigned>(d))};
    return date.ok() ? std::optional<LogDay>(date) : std::nullopt;
}

int SecondOfDay(TextView time) {
    constexpr int minute = 60;
    return (Number(time.substr(0, 2)) * minute + Number(time.substr(3, 2))) * minute +
           Number(time.substr(6, 2));
}

std::string MomentText(LogDay date, TextView time) {
    const year_month_day parts(date);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT", static_cast<int>(parts.year()),
                  static_cast<unsigned>(parts.month()), static_cast<unsigned>(parts.day()));
    return text.data() + std::string(time);
}

/// Follows the records from day to day.
struct Calendar {
    explicit Calendar(LogDay firstDay) : day(firstDay) {}
    void GoTo(const LogRecord& record) {
        constexpr int hour = 3600;
        if (record.time.empty())
            return;
        if (SecondOfDay(record.time) + hour < SecondOfDay(time))
            day += std::chrono::days(1);
        time = record.time;
    }
    [[nodiscard]] std::chrono::sys_seconds Seconds() const {
        return day + std::chrono::seconds(SecondOfDay(time));
    }
    LogDay day;
    TextView time = "00:00:00.000";
};

} // namespace

std::optional<LogName> ReadLogName(TextView stem) {
    constexpr TextView form = "Sat Nov 14 18-51-06 2026";
    constexpr TextView months = "JanFebMarAprMayJunJulAugSepOctNovDec";
    if (stem.size() <= form.size())
        return std::nullopt;
    const auto moment = stem.substr(stem.size() - form.size());
    const auto owner = stem.substr(0, stem.size() - form.size());
    const auto monthPlace = months.find(moment.substr(4, 3));
    if (!owner.ends_with(' ') || monthPlace == TextView::npos || monthPlace % 3 != 0)
        return std::nullopt;
    const auto date =
        MakeDay(Number(moment.substr(20)), static_cast<int>(monthPlace / 3) + 1, Number(moment.substr(8, 2)));
    if (!date)
        return std::nullopt;
    return LogName{Text(owner.substr(0, owner.size() - 1)), *date};
}

std::optional<LogDay> ReadLogDay(TextView date) {
    constexpr TextView form = "2026-11-14";
    if (date.size() != form.size() || date[4] != '-' || date[7] != '-')
        return std::nullopt;
    return MakeDay(Number(date.substr(0, 4)), Number(date.substr(5, 2)), Number(date.substr(8)));
}

std::vector<std::string> MomentsOf(const std::vector<LogRecord>& records, LogDay firstDay) {
    std::vector<std::string> moments;
    Calendar calendar(firstDay);
    for (const auto& record : records) {
        calendar.GoTo(record);
        moments.push_back(MomentText(calendar.day, calendar.time));
    }
    return moments;
}

std::int64_t SecondsOf(const std::vector<LogRecord>& records) {
    Calendar calendar(LogDay{});
    std::optional<std::chrono::sys_seconds> first;
    for (const auto& record : records) {
        calendar.GoTo(record);
        if (!first && !record.time.empty())
            first = calendar.Seconds();
    }
    return first ? (calendar.Seconds() - *first).count() : 0;
}

} // namespace ondrilo
