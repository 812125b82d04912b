#include "platform/qt/NativePixels.h"

#include <gtest/gtest.h>

namespace ondrilo {
namespace {

TEST(NativePixels, EachScreenCountsFromItsOwnCornerWithItsOwnFactor) {
    EXPECT_EQ(FromNative(Point{799, 700}), (Point{799, 700}));
    EXPECT_EQ(FromNative(Point{800, 100}), (Point{800, 100}));
    EXPECT_EQ(FromNative(Point{1780, 690}), (Point{1290, 395}));
    EXPECT_EQ(ToNative({1290, 395}), (Point{1780, 690}));
    EXPECT_EQ(ToNative({799, 700}), (Point{799, 700}));
    EXPECT_EQ(FromNative(Rectangle{900, 300, 400, 200}), (Rectangle{850, 200, 200, 100}));
}

} // namespace
} // namespace ondrilo
