// A match to put into any position and to play on the virtual clock: jackAt(…), redAt(…), then settled().
#pragma once

#include "engine/GameLogic.h"
#include "platform/runloop/VirtualQueue.h"
#include "tests/MatchSetup.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace vorbel::test {

// Counts what is played, by name.
class SpyAudio final : public Audio {
public:
    [[nodiscard]] std::unique_ptr<SystemSound> systemSound(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) override;
    [[nodiscard]] std::unique_ptr<Tone> tone() override { return nullptr; }

    std::map<std::string, std::string> log; // by sound: "stop play stop play …"
    std::map<std::string, float> pan;       // by sound: where it was last put
    std::string crowd;                      // what was done to the crowd's player
    bool filesAreBroken = false;
};

class MatchTest : public testing::Test {
protected:
    VirtualQueue queue;
    SeededRandom random{7};
    SpyAudio audio;
    Resources resources;
    GameLogic game{Platform{queue, random, audio, resources}};
    MatchSetup setup{game};
    MatchState& state = setup.state();

    // --- given: a position ---
    void humanAgainstHuman(AppLanguage language = AppLanguage::en);
    void emptyCourt() { setup.emptyCourt(); }
    Node::Ptr jackAt(double x, double z) { return setup.place(BallColor::jack, x, z); }
    Node::Ptr redAt(double x, double z) { return setup.place(BallColor::red, x, z); }
    Node::Ptr blueAt(double x, double z) { return setup.place(BallColor::blue, x, z); }
    void ballsLeft(int red, int blue);
    void score(int red, int blue);
    void level(AIDifficulty difficulty) { game.aiDifficulty = difficulty; }
    // An end in play, that side's ball waiting.
    void playingWith(BallColor turn);

    // --- when: something happens ---
    void ticks(int count) { queue.advance(count * GameLogic::tickPeriod); }
    void press(int times = 1);
    // A human's throw from `idle` to the release, with the aim as given.
    void humanThrows(double angle, double power);
    // Ticks until the throw that is on its way has been judged; the number of ticks it took.
    int settled();

    // --- then: what is there ---
    [[nodiscard]] Node::Ptr jack() const { return game.scene.root->findChild("jack"); }
    [[nodiscard]] std::vector<Node::Ptr> balls(std::string_view name) const;
    [[nodiscard]] std::string message() const { return game.message; }
};

inline constexpr double exactly = 1e-12;

} // namespace vorbel::test
