#include "platform/speech/UtteranceQueue.h"

#include <gtest/gtest.h>

#include <thread>

namespace vorbel {
namespace {

TEST(UtteranceQueueTest, WhatIsToBeSaidKeepsItsOrder) {
    UtteranceQueue queue;
    queue.push({"a", "en"});
    queue.push({"b", "de"});
    EXPECT_EQ(queue.pop()->text, "a");
    EXPECT_EQ(queue.pop()->language, "de");
}

TEST(UtteranceQueueTest, AnUrgentOneTakesThePlaceOfAllThatWait) {
    UtteranceQueue queue;
    queue.push({"a", "en"});
    queue.push({"b", "en", true});
    queue.push({"c", "en"});
    EXPECT_EQ(queue.pop()->text, "b");
    EXPECT_EQ(queue.pop()->text, "c");
}

TEST(UtteranceQueueTest, TheOldestOfTooManyAreDropped) {
    UtteranceQueue queue;
    for (int i = 0; i < 20; ++i) {
        queue.push({std::to_string(i), "en"});
    }
    EXPECT_EQ(queue.pop()->text, "4");
}

TEST(UtteranceQueueTest, ClosingItEndsTheWait) {
    UtteranceQueue queue;
    std::optional<Utterance> popped{Utterance{}};
    std::thread waiting([&] { popped = queue.pop(); });
    queue.close();
    waiting.join();
    EXPECT_FALSE(popped.has_value());
}

TEST(UtteranceQueueTest, NothingIsSaidOnceItIsClosed) {
    UtteranceQueue queue;
    queue.push({"a", "en"});
    queue.close();
    EXPECT_FALSE(queue.pop().has_value());
}

} // namespace
} // namespace vorbel
