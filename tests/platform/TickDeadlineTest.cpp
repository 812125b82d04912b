#include "platform/Clock.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

TEST(TickDeadline, ASlowHandlerMakesTicksLateButNeverFastNorInABunch) {
    TickDeadline deadline(Milliseconds{100}, Milliseconds{1000});
    EXPECT_EQ(deadline.Remaining(Milliseconds{1000}), Milliseconds{100});
    EXPECT_EQ(deadline.Remaining(Milliseconds{1130}), Milliseconds{0});

    deadline.Advance(Milliseconds{1130});
    EXPECT_EQ(deadline.Remaining(Milliseconds{1130}), Milliseconds{70}) << "the grid does not slip";

    deadline.Advance(Milliseconds{1550});
    EXPECT_EQ(deadline.Remaining(Milliseconds{1550}), Milliseconds{50}) << "missed ticks are dropped";

    deadline.Advance(Milliseconds{1600});
    EXPECT_EQ(deadline.Remaining(Milliseconds{1600}), Milliseconds{100});
}

} // namespace
} // namespace ondrilo
