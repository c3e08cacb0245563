// A recorded match goes again as it went, or is found out.
#include "recording/PhysicsId.h"
#include "tests/PlacesOfBalls.h"
#include "tests/unit/recording/PlayedMatch.h"

#include <gtest/gtest.h>

namespace vorbel::recording {

namespace {

Replay::State replayed(const std::string& text) {
    return ReplayedMatch(recordingIn(text)).play();
}

std::string withoutLast(const std::string& text, int lines) {
    std::size_t end = text.size();
    for (int i = 0; i < lines; ++i) {
        end = text.rfind('\n', end - 2) + 1;
    }
    return text.substr(0, end);
}

// A match with a bit of everything that a player can do, which the computer brings to its end.
struct Played : PlayedMatch {
    Played() {
        game.playerClass = BocciaClass::bc1; // whose release is a matter of chance
        throwABall();
        game.setPowerPace(0);
        game.processInput();
        game.turnAim(-0.07);
        game.raiseAim(0.3);
        game.takeBack();
        game.processInput();
        game.moveAimRight();
        game.processInput();
        game.changePower(45);
        game.processInput();
        ticks(300);
        game.setPowerPace(0.5);
        game.aiDifficulty = AIDifficulty::hard;
        game.playerCountry = Country::japan;
        game.blueIsAI = true;
        game.redIsAI = true;
        ticks(30);
        game.pause();
        ticks(100);
        game.resume();
        letTheComputerFinish();
    }
    [[nodiscard]] const std::string& text() const { return *texts.at(0); }
};

} // namespace

TEST(ReplayTest, GoesAsTheMatchWent) {
    const Played played;
    ReplayedMatch again(recordingIn(played.text()));
    EXPECT_EQ(again.play(), Replay::State::complete);
    EXPECT_EQ(test::placesOfBalls(again.game), test::placesOfBalls(played.game));
    EXPECT_EQ(again.game.endHistory.get(), played.game.endHistory.get());
    EXPECT_EQ(again.game.blueCountry, played.game.blueCountry);
}

TEST(ReplayTest, AMatchThatFollowedAnotherDoesNotNeedIt) {
    SeededRandom seeds(3);
    PlayedMatch match;
    match.recorder.drawSeedsFrom(seeds);
    match.game.playerClass = BocciaClass::bc1;
    match.game.startTournament(Country::thailand);
    match.throwABall(33); // leaves its aim and the direction of its swing
    match.letTheComputerFinish();
    match.game.redIsAI = false;
    match.game.processInput(); // the next round, or out
    match.throwABall(10);
    match.letTheComputerFinish();
    ASSERT_EQ(match.texts.size(), 2U);
    ReplayedMatch second(recordingIn(*match.texts[1]));
    EXPECT_EQ(second.play(), Replay::State::complete);
    EXPECT_EQ(test::placesOfBalls(second.game), test::placesOfBalls(match.game));
}

TEST(ReplayTest, ATournamentBegunWhileTheComputerIsAboutToThrow) {
    PlayedMatch match;
    match.throwABall();
    match.game.redIsAI = true;
    match.game.blueIsAI = true;
    match.ticks(20);
    match.game.startTournament(Country::peru); // its step comes while it is the player's turn
    match.ticks(100);
    match.throwABall();
    match.letTheComputerFinish();
    EXPECT_EQ(replayed(*match.texts.back()), Replay::State::complete);
    EXPECT_EQ(recordingIn(*match.texts.back()).heading.start.tournamentRound, 1);
}

TEST(ReplayTest, AMatchLeftInTheMiddleIsCutShort) {
    const Played played;
    EXPECT_EQ(replayed(withoutLast(played.text(), 1)), Replay::State::cutShort);
    EXPECT_EQ(replayed(withoutLast(played.text(), 40)), Replay::State::cutShort);
    EXPECT_EQ(replayed(played.text().substr(0, played.text().size() / 2)), Replay::State::cutShort);
}

TEST(ReplayTest, AMatchThatWasChangedIsFoundOut) {
    const Played played;
    const auto changed = [&](std::string_view old, std::string_view with) {
        std::string text = played.text();
        return text.replace(text.find(old), old.size(), with);
    };
    EXPECT_EQ(replayed(changed(R"("by":0.05)", R"("by":0.0500001)")), Replay::State::parted);
    EXPECT_EQ(replayed(changed(R"("by":45.0)", R"("by":45.5)")), Replay::State::parted);
    EXPECT_EQ(replayed(changed(R"("to":"hard")", R"("to":"easy")")), Replay::State::parted);
    EXPECT_EQ(replayed(changed(R"("result":{"red":)", R"("result":{"red":1)")), Replay::State::parted);
    EXPECT_EQ(replayed(changed(R"("seed":"0)", R"("seed":"1)")), Replay::State::parted);
    EXPECT_EQ(replayed(changed(R"({"tick":60,"do":"press"})", R"({"tick":61,"do":"press"})")),
              Replay::State::parted);
}

TEST(ReplayTest, ALineThatWasTakenOutIsFoundOut) {
    const Played played;
    std::string text = played.text();
    const std::size_t step = text.find(R"("do":"step")", text.size() / 2);
    const std::size_t line = text.rfind('\n', step) + 1;
    text.erase(line, text.find('\n', step) + 1 - line);
    EXPECT_EQ(replayed(text), Replay::State::parted);
}

TEST(ReplayTest, SkipsTheTimeInTheMenuAtTheBeginning) {
    PlayedMatch match;
    match.ticks(900);
    match.game.playerClass = BocciaClass::bc3;
    match.ticks(100);
    match.throwABall();
    ReplayedMatch again(recordingIn(*match.texts[0]));
    again.replay.skipIdleBeginning(50);
    EXPECT_EQ(again.replay.ticks(), 950);
    EXPECT_EQ(again.game.playerClass, BocciaClass::bc3);
    again.replay.skipIdleBeginning(50);
    EXPECT_EQ(again.replay.ticks(), 950);
}

} // namespace vorbel::recording
