#include "platform/Clock.h"
#include "platform/MessageQueue.h"

#include <gmock/gmock.h>

#include <thread>
#include <vector>

namespace ondrilo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MessageQueueTest : public testing::Test {
  protected:
    void Drain() {
        queue.Drain([this](const MessageEvent& event) { handled.push_back(event.first); });
    }
    void Post(int number) { queue.Post(Message::UM_CHAR, number); }

    MessageQueue queue;
    std::vector<int> handled;
};

TEST_F(MessageQueueTest, ADialogsLoopInsideAHandlerGoesOnWithTheNextEventAndWithWhatItPosts) {
    Post(1);
    Post(2);
    queue.Drain([this](const MessageEvent& event) {
        if (event.first == 1) {
            Post(3);
            Drain();
        }
        handled.push_back(event.first);
    });
    EXPECT_THAT(handled, ElementsAre(2, 3, 1)) << "each once, and the outer handler ends last";
}

TEST_F(MessageQueueTest, NothingIsHandledWhileHeldAndTheLastReleaseWakesTheLoop) {
    int wakes = 0;
    queue.OnPost([&wakes] { ++wakes; });
    {
        const auto outer = MessageQueue::Hold(queue);
        {
            const auto inner = MessageQueue::Hold(queue);
            Post(1);
        }
        Drain();
        EXPECT_THAT(handled, IsEmpty());
        EXPECT_EQ(wakes, 1);
    }
    EXPECT_EQ(wakes, 2) << "else what was posted meanwhile would wait for the next event";
    Drain();
    EXPECT_THAT(handled, ElementsAre(1));
}

TEST_F(MessageQueueTest, AHoldBegunByAHandlerStopsTheDrainAndClearThrowsAwayWhatWaits) {
    Post(1);
    Post(2);
    std::vector<MessageQueue::Hold> holds;
    queue.Drain([&](const MessageEvent& event) {
        handled.push_back(event.first);
        holds.emplace_back(queue);
    });
    EXPECT_THAT(handled, ElementsAre(1));
    queue.Clear();
    holds.clear();
    Drain();
    EXPECT_THAT(handled, ElementsAre(1));
}

TEST_F(MessageQueueTest, PostingNeverRunsAHandlerAndAWakeMayPostItself) {
    bool posted = false;
    queue.OnPost([&] {
        if (!std::exchange(posted, true))
            Post(2);
    });
    Post(1);
    EXPECT_THAT(handled, IsEmpty());
    Drain();
    EXPECT_THAT(handled, ElementsAre(1, 2));
}

TEST_F(MessageQueueTest, ThreadsThatPostLoseNothingAndKeepTheirOwnOrder) {
    constexpr int kEach = 2000;
    const auto post = [this](int thread) {
        for (int i = 0; i < kEach; ++i)
            queue.Post(Message::UM_KEY_DOWN, thread, i);
    };
    std::thread first(post, 0);
    std::thread second(post, 1);
    int next[2] = {};
    while (next[0] + next[1] < 2 * kEach)
        queue.Drain([&](const MessageEvent& event) { EXPECT_EQ(event.second, next[event.first]++); });
    first.join();
    second.join();
}

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
