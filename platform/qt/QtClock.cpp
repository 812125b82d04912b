#include "platform/qt/QtClock.h"

#include <QDateTime>

#include <thread>

namespace ondrilo {

Milliseconds QtClock::Monotonic() const {
    return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

std::int64_t QtClock::Seconds() const {
    return QDateTime::currentSecsSinceEpoch();
}

LocalTime QtClock::Local() const {
    const auto now = QDateTime::currentDateTime();
    const auto date = now.date();
    const auto time = now.time();
    // Qt counts weekdays from Monday, 1, to Sunday, 7.
    return {date.year(),   date.month(),  date.day(),  time.hour(),
            time.minute(), time.second(), time.msec(), date.dayOfWeek() % 7 + 1};
}

void QtClock::Sleep(Milliseconds duration) {
    std::this_thread::sleep_for(duration);
}

} // namespace ondrilo
