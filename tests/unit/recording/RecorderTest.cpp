// What of a match is written, and when.
#include "tests/unit/recording/PlayedMatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace vorbel::recording {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(RecorderTest, AMatchInWhichNoBallWasThrownLeavesNothing) {
    PlayedMatch match;
    match.game.playerClass = BocciaClass::bc4;
    match.game.processInput();
    match.ticks(2000);
    match.game.resetMatch();
    EXPECT_TRUE(match.texts.empty());
}

TEST(RecorderTest, TheFirstThrowBringsAllThatWasBefore) {
    PlayedMatch match;
    match.game.playerClass = BocciaClass::bc4;
    match.ticks(3);
    match.game.processInput();
    match.game.turnAim(0.05);
    match.game.processInput();
    match.ticks(40);
    match.game.processInput();
    ASSERT_EQ(match.texts.size(), 1U);
    const std::string& text = *match.texts[0];
    EXPECT_THAT(text, StartsWith(R"({"vorbel":"match","version":1,"physics":")"));
    EXPECT_THAT(text,
                HasSubstr("\n{\"tick\":0,\"set\":\"class\",\"to\":\"BC4\"}\n{\"tick\":3,\"do\":\"press\"}\n"
                          "{\"tick\":3,\"do\":\"turn\",\"by\":0.05}\n"));
    EXPECT_THAT(text, EndsWith("\n{\"tick\":43,\"do\":\"press\"}\n"));
}

TEST(RecorderTest, WhatWasPlayedIsOnTheDiskAtOnce) {
    PlayedMatch match;
    match.throwABall();
    const std::size_t before = match.texts[0]->size();
    match.game.processInput();
    EXPECT_GT(match.texts[0]->size(), before);
    match.ticks(2 * Recorder::checkInterval);
    EXPECT_THAT(*match.texts[0], HasSubstr(R"({"tick":1000,"hash":")"));
}

TEST(RecorderTest, KeysThatAimNothingAreLeftOut) {
    PlayedMatch match;
    match.throwABall();
    const std::size_t before = match.texts[0]->size();
    match.game.moveAimLeft();
    match.game.raiseAim(0.1);
    match.game.changePower(5);
    match.game.setPowerPace(1);
    EXPECT_EQ(match.texts[0]->size(), before);
}

TEST(RecorderTest, AMatchEndsWithItsResult) {
    PlayedMatch match;
    match.letTheComputerFinish();
    const Recording recording = recordingIn(*match.texts.at(0));
    const auto& result = std::get<Result>(recording.entries.back().what);
    EXPECT_EQ(result.score, (Points{match.game.redScore, match.game.blueScore}));
    EXPECT_EQ(result.ends.size(), match.game.endHistory.get().size());
    EXPECT_LT(match.texts[0]->size(), 20'000U);
}

TEST(RecorderTest, EachMatchHasAFileAndASeedOfItsOwn) {
    SeededRandom seeds(8);
    PlayedMatch match;
    match.recorder.drawSeedsFrom(seeds);
    match.throwABall();
    match.game.resetMatch(); // in the middle
    match.throwABall();
    ASSERT_EQ(match.texts.size(), 2U);
    const Recording first = recordingIn(*match.texts[0]);
    const Recording second = recordingIn(*match.texts[1]);
    EXPECT_NE(first.heading.random.seed, second.heading.random.seed);
    EXPECT_GT(first.heading.random.drawn, 0U); // the arena's
    EXPECT_EQ(second.heading.random.drawn, 0U);
}

TEST(RecorderTest, SaysWhenItCannotWrite) {
    PlayedMatch match;
    Recorder full(match.game, match.random, [] { return std::make_unique<std::ofstream>("/dev/full"); });
    Recorder nowhere(match.game, match.random, [] { return nullptr; });
    EXPECT_TRUE(full.isWritten() && nowhere.isWritten());
    match.throwABall();
    EXPECT_FALSE(full.isWritten());
    EXPECT_FALSE(nowhere.isWritten());
    EXPECT_TRUE(match.recorder.isWritten());
}

} // namespace vorbel::recording
