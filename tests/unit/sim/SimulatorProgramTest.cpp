// The simulator as a program: its limits, what it says, its status.
#include "recording/PhysicsId.h"
#include "tools/sim/Ladder.h"
#include "tools/sim/Options.h"
#include "tools/sim/Progress.h"
#include "tools/sim/Simulator.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>
#include <thread>
#include <vector>

namespace vorbel::sim {

namespace {

using Arguments = std::vector<const char*>;

LadderSettings ladder(const Arguments& arguments) {
    return ladderSettings(std::get<Options>(parseOptions(arguments)));
}

std::string textOf(const std::string& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class SimulatorFolder {
public:
    SimulatorFolder() { std::filesystem::create_directories(place_); }
    ~SimulatorFolder() { std::filesystem::remove_all(place_); }
    SimulatorFolder(const SimulatorFolder&) = delete;
    SimulatorFolder& operator=(const SimulatorFolder&) = delete;

    [[nodiscard]] std::string file(const char* name) const { return place_ / name; }

private:
    std::filesystem::path place_ =
        std::filesystem::temp_directory_path() / ("vorbel-sim-" + std::to_string(std::random_device()()));
};

} // namespace

TEST(SimulatorProgramTest, TellsAMatchInALine) {
    std::ostringstream out;
    std::ostringstream errors;
    EXPECT_EQ(simulate(Arguments{"--seed", "3"}, out, errors), 0);
    EXPECT_TRUE(out.str().starts_with("match 3  red medium  blue medium  score ")) << out.str();
    EXPECT_EQ(errors.str(), "");
}

TEST(SimulatorProgramTest, TheSignatureIsTheOneThatRecordingsName) {
    std::ostringstream out;
    std::ostringstream errors;
    EXPECT_EQ(simulate(Arguments{"--signature"}, out, errors), 0);
    EXPECT_EQ(out.str(), std::string(recording::physicsId) + "\n");
}

TEST(SimulatorProgramTest, WrongArgumentsAreOneLineAndStatus2) {
    std::ostringstream out;
    std::ostringstream errors;
    EXPECT_EQ(simulate(Arguments{"--fast"}, out, errors), 2);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(errors.str(), "vorbel-sim: unknown option --fast; see vorbel-sim --help\n");
}

TEST(SimulatorProgramTest, OutputThatCannotBeWrittenIsOneLineAndStatus1) {
    for (const Arguments& arguments : {Arguments{"--help"}, Arguments{"--matches", "2147483647"}}) {
        std::ofstream full("/dev/full");
        std::ostringstream errors;
        EXPECT_EQ(simulate(arguments, full, errors), 1) << arguments[0];
        EXPECT_EQ(errors.str(), "vorbel-sim: cannot write the output\n");
    }
}

TEST(SimulatorProgramTest, AnOddNumberOfMatchesOnTheLadderBecomesEven) {
    EXPECT_EQ(ladder({}).matchesPerCell, 100);
    EXPECT_EQ(ladder({"--matches", "6"}).matchesPerCell, 3);
    EXPECT_EQ(ladder({"--matches", "5"}).matchesPerCell, 3);
}

TEST(SimulatorProgramTest, TellsHowLongTheRestWillTake) {
    EXPECT_EQ(progressText(0, 400, 0), "0 of 400 matches");
    EXPECT_EQ(progressText(100, 400, 10), "100 of 400 matches, 30 s left");
    EXPECT_EQ(progressText(10, 400, 20), "10 of 400 matches, 13 min left");
}

TEST(SimulatorProgramTest, LadderShowsItsProgressOnATerminalAndClearsItInTheEnd) {
    std::ostringstream out;
    std::ostringstream errors;
    std::ostringstream terminal;
    EXPECT_EQ(simulate(Arguments{"--ladder", "--matches", "2"}, out, errors, &terminal), 0);
    EXPECT_TRUE(terminal.str().starts_with("\r\033[K0 of 16 matches")) << terminal.str();
    EXPECT_TRUE(terminal.str().ends_with("\r\033[K"));
    EXPECT_EQ(errors.str(), "");
    EXPECT_EQ(out.str().find('\r'), std::string::npos);
}

TEST(SimulatorProgramTest, ThreadsAndTheirNumberChangeNothing) {
    const auto told = [](const char* jobs) {
        const SimulatorFolder folder;
        const std::string csv = folder.file("throws.csv");
        const std::string plot = folder.file("places.svg");
        std::ostringstream out;
        std::ostringstream errors;
        EXPECT_EQ(simulate(Arguments{"--matches", "6", "--red", "hard", "--trace", "--jobs", jobs, "--csv",
                                     csv.c_str(), "--plot", plot.c_str()},
                           out, errors),
                  0)
            << errors.str();
        return out.str() + textOf(csv) + textOf(plot);
    };
    const std::string one = told("1");
    EXPECT_EQ(told("5"), one);
    EXPECT_NE(one.find("\n6,hard,medium,4,"), std::string::npos); // a row of the last match
    EXPECT_NE(one.find(">hard</text>"), std::string::npos);
}

TEST(SimulatorProgramTest, ARecordedMatchIsToldAgain) {
    const SimulatorFolder folder;
    std::ostringstream played;
    std::ostringstream again;
    std::ostringstream errors;
    const std::string place = folder.file("matches");
    EXPECT_EQ(simulate(Arguments{"--seed", "4", "--trace", "--record", place.c_str()}, played, errors), 0);
    const std::string file = place + "/medium-medium-4.jsonl";
    EXPECT_EQ(simulate(Arguments{"--trace", "--replay", file.c_str()}, again, errors), 0);
    EXPECT_EQ(errors.str(), "");
    const auto throwsOf = [](const std::string& text) {
        return text.substr(0, text.rfind('\n', text.size() - 2));
    };
    EXPECT_EQ(throwsOf(again.str()), throwsOf(played.str()));
    EXPECT_EQ(again.str().substr(throwsOf(again.str()).size()).find("\nas recorded  score "), 0U);
}

TEST(SimulatorProgramTest, WhatCannotBeWrittenOrPlayedIsOneLineAndStatus1) {
    for (const Arguments& arguments :
         {Arguments{"--csv", "/dev/full"}, Arguments{"--plot", "/dev/full"},
          Arguments{"--record", "/proc/nowhere"}, Arguments{"--replay", "/proc/nowhere"},
          Arguments{"--replay", "/dev/zero"}, Arguments{"--replay", "/"}}) {
        std::ostringstream out;
        std::ostringstream errors;
        EXPECT_EQ(simulate(arguments, out, errors), 1) << arguments[0] << arguments[1];
        EXPECT_EQ(std::ranges::count(errors.str(), '\n'), 1) << errors.str();
    }
}

TEST(SimulatorProgramTest, JobsWithoutANumberAreAsManyAsThereAreProcessors) {
    const auto jobs = [](const Arguments& arguments) {
        return std::get<Options>(parseOptions(arguments)).jobs;
    };
    EXPECT_EQ(jobs({"--jobs"}), std::max(1U, std::thread::hardware_concurrency()));
    EXPECT_EQ(jobs({"--jobs", "--trace"}), std::max(1U, std::thread::hardware_concurrency()));
    EXPECT_EQ(jobs({"--jobs", "3"}), 3U);
    EXPECT_TRUE(std::holds_alternative<std::string>(parseOptions(Arguments{"--jobs", "many"})));
}

TEST(SimulatorProgramTest, TheLargestLadderIsCounted) {
    const LadderSettings settings = ladder({"--matches", "2147483647"});
    EXPECT_EQ(settings.matchesPerCell, 1 << 30);
    EXPECT_EQ(matchesOf(settings), std::int64_t{1} << 34);
    WinTable half{};
    for (auto& row : half) {
        row.fill(settings.matchesPerCell / 2);
    }
    EXPECT_EQ(winRate(half, settings.matchesPerCell, AIDifficulty::hard, AIDifficulty::easy), 0.5);
    half[2][0] = settings.matchesPerCell;
    half[0][2] = 0;
    EXPECT_EQ(winRate(half, settings.matchesPerCell, AIDifficulty::hard, AIDifficulty::easy), 1);
}

TEST(SimulatorProgramTest, MoreJobsThanThereCanBeAreAsManyAsThereAre) {
    LadderSettings few{.matchesPerCell = 1};
    LadderSettings many{.matchesPerCell = 1, .jobs = std::numeric_limits<unsigned>::max()};
    EXPECT_EQ(playLadder(many), playLadder(few));
}

} // namespace vorbel::sim
