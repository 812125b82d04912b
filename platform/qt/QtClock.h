#pragma once

#include "platform/Clock.h"

namespace ondrilo {

/// The machine's clocks.
class QtClock : public Clock {
  public:
    [[nodiscard]] Milliseconds Monotonic() const override;
    [[nodiscard]] std::int64_t Seconds() const override;
    [[nodiscard]] LocalTime Local() const override;
    void Sleep(Milliseconds duration) override;
};

} // namespace ondrilo
