#include "platform/runloop/QtMainQueue.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <thread>

namespace vorbel {

class QtMainQueueTest : public testing::Test {
protected:
    void runUntil(const bool& done) {
        QElapsedTimer patience;
        patience.start();
        while (!done && patience.elapsed() < 5000) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        }
        ASSERT_TRUE(done);
    }

private:
    int argumentCount_ = 1;
    char name_[5] = "test";
    char* arguments_[2] = {name_, nullptr};
    QCoreApplication application_{argumentCount_, arguments_};
};

TEST_F(QtMainQueueTest, RunsTasksInOrderAndNeverAtOnce) {
    QtMainQueue queue;
    std::vector<int> order;
    bool done = false;
    queue.post([&order] { order.push_back(1); });
    queue.post([&] {
        order.push_back(2);
        queue.post([&done] { done = true; });
    });
    EXPECT_TRUE(order.empty());
    runUntil(done);
    EXPECT_EQ(order, (std::vector{1, 2}));
}

TEST_F(QtMainQueueTest, TakesTasksFromOtherThreadsAndRunsThemOnTheMainThread) {
    QtMainQueue queue;
    bool done = false;
    const auto mainThread = std::this_thread::get_id();
    std::thread([&] {
        queue.post([&, mainThread] {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            done = true;
        });
    }).join();
    runUntil(done);
}

TEST_F(QtMainQueueTest, ADelayedTaskIsNeverEarly) {
    QtMainQueue queue;
    bool done = false;
    const double start = queue.now();
    queue.postAfter(0.05, [&done] { done = true; });
    runUntil(done);
    EXPECT_GE(queue.now() - start, 0.05);
}

TEST_F(QtMainQueueTest, ARepetitionKeepsItsPaceOnAverage) {
    QtMainQueue queue;
    int firings = 0;
    bool done = false;
    const double start = queue.now();
    const Subscription repetition = queue.repeat(0.0125, [&] { done = ++firings == 40; });
    runUntil(done);
    EXPECT_GE(queue.now() - start,
              40 * 0.0125 - 1e-9); // never ahead, though its period is no whole millisecond
}

TEST_F(QtMainQueueTest, FiringsThatAreLateByAWholePeriodAreDropped) {
    QtMainQueue queue;
    int firings = 0;
    bool done = false;
    const double start = queue.now();
    const Subscription repetition = queue.repeat(0.02, [&] { ++firings; });
    while (queue.now() < start + 0.21) {
        // the main thread is busy: nothing can fire
    }
    queue.post([&done] { done = true; });
    runUntil(done);
    EXPECT_LE(firings, 1);
}

TEST_F(QtMainQueueTest, ACancelledRepetitionFiresNoMore) {
    QtMainQueue queue;
    int firings = 0;
    int firingsOfOther = 0;
    bool done = false;
    Subscription cancelled = queue.repeat(0.005, [&] {
        ++firings;
        cancelled.cancel();
    });
    const Subscription other = queue.repeat(0.01, [&] { done = ++firingsOfOther == 3; });
    runUntil(done); // its third firing is due when the cancelled one's sixth would have been
    EXPECT_EQ(firings, 1);
}

TEST_F(QtMainQueueTest, AFasterQueueShortensEveryDelay) {
    QtMainQueue queue(1000);
    bool done = false;
    const double start = queue.now();
    queue.postAfter(100, [&done] { done = true; });
    runUntil(done); // whose patience is shorter than that
    EXPECT_GE(queue.now() - start, 100);
}

TEST_F(QtMainQueueTest, WhatWaitsIsForgottenWithTheQueue) {
    bool ran = false;
    {
        QtMainQueue queue;
        queue.post([&ran] { ran = true; });
        queue.postAfter(0, [&ran] { ran = true; });
    }
    QCoreApplication::processEvents();
    EXPECT_FALSE(ran);
}

} // namespace vorbel
