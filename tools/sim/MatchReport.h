// What is told of a match beside its result.
#pragma once

#include "tools/sim/MatchPlayer.h"

#include <string>
#include <vector>

namespace vorbel::sim {

// Where a colour ball lay, seen from the jack, when its throw was over.
struct RestingPlace {
    AIDifficulty level = AIDifficulty::medium; // of who threw it
    double right = 0;                          // m
    double beyond = 0;                         // m, farther down the court than the jack
};

struct MatchReport {
    Pairing pairing{};
    bool hasEnded = false;
    bool isRecorded = true; // or was not to be
    bool redHasWon = false;
    std::string text{};                 // the trace, if wanted, and the result
    std::string rows{};                 // of the table of throws
    std::vector<RestingPlace> places{}; // for the plot
};

struct Wanted {
    bool trace = false;
    bool rows = false;
    bool places = false;
    std::string recordings{}; // folder; empty: none
};

[[nodiscard]] MatchReport reportOf(const Pairing& pairing, const Wanted& wanted);

// The names of the columns of `rows`: comma-separated values as spreadsheets read them.
[[nodiscard]] std::string headOfRows();

// The file that a match is recorded in, without its folder.
[[nodiscard]] std::string recordingName(const Pairing& pairing);

} // namespace vorbel::sim
