// A match that was played, as a file holds it.
#pragma once

#include "engine/MatchAction.h"
#include "engine/MatchStart.h"
#include "recording/MatchRandom.h"
#include "rules/Scoring.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vorbel::recording {

inline constexpr int formatVersion = 1;
inline constexpr std::int64_t mostTicks = 24 * 60 * 60 * 50; // a day: no match lasts longer

// What a player chose during the match: one of the values that a match publishes for writing.
struct RedIsAI {
    bool computer = false;
};
struct BlueIsAI {
    bool computer = false;
};
using Choice = std::variant<RedIsAI, BlueIsAI, AIDifficulty, BocciaClass, Country>;

struct Check {
    std::uint64_t hash = 0; // StateHash, of all ticks so far
};

struct Result {
    std::uint64_t hash = 0;
    Points score{};
    std::vector<Points> ends{};
};

struct Entry {
    std::int64_t tick = 0; // as many ticks of the match were over by then
    std::variant<MatchAction, Choice, Check, Result> what;
};

struct Heading {
    std::string physics;
    MatchRandom::Place random{};
    MatchStart start{};
};

struct Recording {
    Heading heading;
    std::vector<Entry> entries; // in the order in which they happened; a Result only as the last
};

// The recording, or one sentence that says why the text cannot be played: it was cut short within its first line, it
// was edited, it comes from a newer game, or from other physics than this game's. A text that lacks its end is a
// recording without a result.
[[nodiscard]] std::variant<Recording, std::string> readRecording(std::string_view text);

} // namespace vorbel::recording
