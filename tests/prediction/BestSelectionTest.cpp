#include "prediction/BestSelection.h"

#include <gtest/gtest.h>

#include <limits>

namespace ondrilo {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

std::vector<std::uint32_t> Selected(const std::vector<double>& scores, std::size_t n) {
    std::vector<SelectedScore> best;
    SelectBest(scores, n, best);
    std::vector<std::uint32_t> indexes;
    for (const auto& selected : best)
        indexes.push_back(selected.index);
    return indexes;
}

using Indexes = std::vector<std::uint32_t>;

TEST(BestSelection, OfEqualScoresTheLaterComesFirstUntilTheListIsFull) {
    EXPECT_EQ(Selected({1, 1, 1, 1}, 3), (Indexes{2, 1, 0}));
    EXPECT_EQ(Selected({1, 2, 1, 2, 2}, 3), (Indexes{4, 3, 1}));
    EXPECT_EQ(Selected({3, 1, 3}, 1), (Indexes{0}));
    EXPECT_EQ(Selected({1, 3, 2, 3, 1, 2, 4}, 4), (Indexes{6, 3, 1, 5}));
    EXPECT_EQ(Selected({1, 2}, 0), Indexes{});
    EXPECT_EQ(Selected({}, 5), Indexes{});
}

TEST(BestSelection, WhatIsNoNumberGoesToTheTail) {
    EXPECT_EQ(Selected({kNoNumber, 1, kNoNumber, 2}, 4), (Indexes{0, 3, 1, 2}));
    EXPECT_EQ(Selected({kNoNumber, kNoNumber, 5}, 2), (Indexes{0, 1})) << "nothing is above it either";
}

} // namespace
} // namespace ondrilo
