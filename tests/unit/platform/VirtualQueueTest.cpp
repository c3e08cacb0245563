#include "platform/runloop/VirtualQueue.h"
#include "platform/runloop/Lifetime.h"

#include <gtest/gtest.h>

#include <string>

namespace vorbel {

class VirtualQueueTest : public testing::Test {
protected:
    MainQueue::Task note(std::string text) {
        return [this, text = std::move(text)] { log += text; };
    }
    VirtualQueue queue;
    std::string log;
};

TEST_F(VirtualQueueTest, PostedWorkRunsInOrderAndOnlyWhenTimeIsGiven) {
    queue.post(note("a"));
    queue.post(note("b"));
    EXPECT_EQ(log, "");
    queue.advance(0);
    EXPECT_EQ(log, "ab");
}

TEST_F(VirtualQueueTest, WorkPostedByWorkRunsInTheSameInstant) {
    queue.post([this] { queue.post(note("inner")); });
    queue.advance(0);
    EXPECT_EQ(log, "inner");
}

TEST_F(VirtualQueueTest, DelayedWorkRunsExactlyWhenDue) {
    queue.postAfter(0.8, note("late"));
    queue.advance(0.79);
    EXPECT_EQ(log, "");
    queue.advance(0.01);
    EXPECT_EQ(log, "late");
}

TEST_F(VirtualQueueTest, TheFortiethTickFallsOnTheSameInstantAsEightTenths) {
    int ticks = 0;
    int ticksAtDelay = -1;
    const Subscription ticking = queue.repeat(0.02, [&] { ++ticks; });
    queue.postAfter(0.8, [&] { ticksAtDelay = ticks; });
    queue.advance(0.8);
    EXPECT_EQ(ticks, 40);
    EXPECT_EQ(ticksAtDelay, 39); // the delay was set before the fortieth tick was
    EXPECT_DOUBLE_EQ(queue.now(), 0.8);
}

TEST_F(VirtualQueueTest, ARepetitionEndsWithItsSubscription) {
    Subscription ticking = queue.repeat(0.5, note("."));
    queue.advance(1.2);
    EXPECT_EQ(log, "..");
    ticking.cancel();
    queue.advance(5);
    EXPECT_EQ(log, "..");
}

TEST_F(VirtualQueueTest, AReplacedSubscriptionEndsTheFormerRepetition) {
    Subscription ticking = queue.repeat(0.5, note("a"));
    ticking = queue.repeat(0.5, note("b"));
    queue.advance(0.5);
    EXPECT_EQ(log, "b");
}

TEST_F(VirtualQueueTest, ARepetitionMayCancelItself) {
    Subscription ticking;
    ticking = queue.repeat(0.1, [&] {
        log += ".";
        ticking.cancel();
    });
    queue.advance(1);
    EXPECT_EQ(log, ".");
}

TEST_F(VirtualQueueTest, WorkOfADeadOwnerDoesNothing) {
    auto owner = std::make_unique<Lifetime>();
    queue.post(owner->whileAlive(note("alive ")));
    queue.postAfter(1, owner->whileAlive(note("dead")));
    queue.advance(0.5);
    owner.reset();
    queue.advance(1);
    EXPECT_EQ(log, "alive ");
}

} // namespace vorbel
