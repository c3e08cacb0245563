// Many matches, recorded and played again: computers against each other, and random keys with all that a player can do.
// VORBEL_REPLAYS sets how many there are of either kind; VORBEL_REPLAYS_FOLDER keeps their files.
#include "recording/Replay.h"
#include "tests/PlacesOfBalls.h"
#include "tests/fuzz/RandomPlayer.h"
#include "tools/sim/MatchPlayer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace vorbel::test {

namespace {

using recording::Recording;
using recording::Replay;

int wantedMatches() {
    constexpr int usual = 6;
    const char* wanted = std::getenv("VORBEL_REPLAYS");
    return wanted == nullptr ? usual : std::atoi(wanted);
}

// A stream into a text that outlives it.
class TextOutput final : public std::ostream {
public:
    explicit TextOutput(std::string& text) : std::ostream(&buffer_), buffer_(text) {}

private:
    struct Buffer final : std::streambuf {
        explicit Buffer(std::string& target) : text(target) {}
        int_type overflow(int_type c) override {
            text += traits_type::to_char_type(c);
            return c;
        }
        std::string& text;
    };
    Buffer buffer_;
};

void keep(const std::string& text, const std::string& name) {
    if (const char* folder = std::getenv("VORBEL_REPLAYS_FOLDER")) {
        std::filesystem::create_directories(folder);
        std::ofstream(std::filesystem::path(folder) / name) << text;
    }
}

struct Replayed {
    explicit Replayed(const std::string& text) : replay(std::get<Recording>(recording::readRecording(text))) {
        game.startAimingLoop();
        replay.begin(game);
        while (replay.state() == Replay::State::running) {
            replay.tick();
        }
    }
    Replay replay;
    HeadlessPlatform platform{99};
    GameLogic game{Platform{replay.queue(), replay.random(), platform.audio, platform.resources}};
};

Action randomAction(SeededRandom& dice) {
    constexpr std::size_t keys = 5;
    constexpr std::size_t oneIn = 40;
    const auto any = static_cast<Action>(dice.index(actionCount));
    const bool leaves = any == Action::newMatch || any == Action::newTournament;
    if (dice.index(oneIn) == 0 && (!leaves || dice.index(oneIn) == 0)) {
        return any;
    }
    return dice.index(3) > 0 ? Action::space : static_cast<Action>(dice.index(keys));
}

} // namespace

TEST(RecordedMatchesTest, OfComputersGoAgainAsTheyWent) {
    for (int i = 0; i < wantedMatches(); ++i) {
        const auto level = [](int place) {
            return allDifficulties[static_cast<std::size_t>(place) % allDifficulties.size()];
        };
        std::string text;
        sim::MatchPlayer match(
            {.seed = static_cast<std::uint64_t>(i), .red = level(i), .blue = level(i / 4)});
        match.record([&text] { return std::make_unique<TextOutput>(text); });
        ASSERT_TRUE(match.play());
        keep(text, "computers-" + std::to_string(i) + ".jsonl");
        const Replayed again(text);
        ASSERT_EQ(again.replay.state(), Replay::State::complete) << "match " << i;
        EXPECT_EQ(placesOfBalls(again.game), placesOfBalls(match.game()));
    }
}

TEST(RecordedMatchesTest, OfRandomKeysGoAgainAsTheyWent) {
    SeededRandom dice(4);
    int complete = 0;
    int left = 0;
    for (std::uint64_t seed = 1; complete < wantedMatches(); ++seed) {
        constexpr int actions = 4000;
        std::vector<std::unique_ptr<std::string>> texts;
        RandomPlayer player(seed);
        player.record([&texts] {
            texts.push_back(std::make_unique<std::string>());
            return std::make_unique<TextOutput>(*texts.back());
        });
        for (int i = 0; i < actions; ++i) {
            player.perform(randomAction(dice));
            player.wait(dice.uniform(0.02, 0.8));
        }
        for (std::size_t i = 0; i < texts.size(); ++i) {
            keep(*texts[i], "keys-" + std::to_string(seed) + "-" + std::to_string(i) + ".jsonl");
            const bool hasResult = texts[i]->find("\"result\"") != std::string::npos;
            const Replayed again(*texts[i]);
            ASSERT_EQ(again.replay.state(), hasResult ? Replay::State::complete : Replay::State::cutShort)
                << "player " << seed << ", match " << i;
            (hasResult ? complete : left) += 1;
        }
    }
    RecordProperty("complete", complete);
    RecordProperty("left", left);
    std::cout << complete << " matches by random keys came to their end, " << left
              << " were left before it\n";
}

} // namespace vorbel::test
