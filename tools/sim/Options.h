// The command line of vorbel-sim.
#pragma once

#include "rules/MatchTypes.h"
#include "tools/sim/LadderSettings.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace vorbel::sim {

struct Options {
    bool help = false;
    bool ladder = false;
    bool signature = false;
    bool trace = false;
    int matches = 1;
    bool matchesGiven = false;
    unsigned jobs = 1;
    AIDifficulty red = AIDifficulty::medium;
    AIDifficulty blue = AIDifficulty::medium;
    std::uint64_t seed = 1;
    std::string replay{}; // file, like the next three; empty: none
    std::string record{}; // a folder
    std::string csv{};
    std::string plot{};
};

// The options, or one line that says what is wrong with the arguments (the program's name not among them).
[[nodiscard]] std::variant<Options, std::string> parseOptions(std::span<const char* const> arguments);

// A number of matches that is odd becomes the next even one.
[[nodiscard]] LadderSettings ladderSettings(const Options& options);

[[nodiscard]] std::string_view helpText();

} // namespace vorbel::sim
