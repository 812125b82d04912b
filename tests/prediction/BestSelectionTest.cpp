#include "prediction/BestSelection.h"

#include <gtest/gtest.h>

#include <limits>
#include <list>
#include <random>

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

/// The rule once more, as a linked list with a first stage and a second.
std::vector<std::uint32_t> SelectedByList(const std::vector<double>& scores, std::size_t n) {
    std::list<std::uint32_t> list;
    const auto insert = [&](std::uint32_t index) {
        auto node = list.begin();
        while (node != list.end() && !(scores[index] >= scores[*node]))
            ++node;
        list.insert(node, index);
    };
    for (std::uint32_t index = 0; index < scores.size() && n > 0; ++index) {
        if (index >= n && !(scores[index] > scores[list.back()]))
            continue;
        if (index >= n)
            list.pop_back();
        insert(index);
    }
    return {list.begin(), list.end()};
}

using Indexes = std::vector<std::uint32_t>;

TEST(BestSelection, OfEqualScoresTheLaterComesFirstUntilTheListIsFull) {
    EXPECT_EQ(Selected({1, 1, 1, 1}, 3), (Indexes{2, 1, 0}));
    EXPECT_EQ(Selected({1, 2, 1, 2, 2}, 3), (Indexes{4, 3, 1}));
    EXPECT_EQ(Selected({3, 1, 3}, 1), (Indexes{0}));
    EXPECT_EQ(Selected({1, 2}, 0), Indexes{});
    EXPECT_EQ(Selected({}, 5), Indexes{});
}

TEST(BestSelection, WhatIsNoNumberGoesToTheTail) {
    EXPECT_EQ(Selected({kNoNumber, 1, kNoNumber, 2}, 4), (Indexes{0, 3, 1, 2}));
    EXPECT_EQ(Selected({kNoNumber, kNoNumber, 5}, 2), (Indexes{0, 1})) << "nothing is above it either";
}

TEST(BestSelection, AgreesWithTheListOnScoresFullOfTies) {
    std::mt19937 random(3);
    for (int round = 0; round < 500; ++round) {
        std::vector<double> scores(random() % 60);
        for (double& score : scores)
            score = random() % 40 == 0 ? kNoNumber : static_cast<double>(random() % 8) / 2;
        const std::size_t n = random() % 20;
        EXPECT_EQ(Selected(scores, n), SelectedByList(scores, n));
    }
}

} // namespace
} // namespace ondrilo
