// A picture of where each level's balls come to rest around the jack.
#pragma once

#include "tools/sim/MatchReport.h"

#include <array>
#include <string>

namespace vorbel::sim {

// Counts places by squares of 5 cm, so that a million of them make no larger picture than a thousand.
class RestPlot {
public:
    void add(const RestingPlace& place);

    // A panel for each level that threw: seen from above, the throwers below, with rings of 0.5 m around the jack. The
    // darker a square, the more balls came to rest there.
    [[nodiscard]] std::string svg() const;

private:
    static constexpr int side = 60; // squares: 1.5 m to each side of the jack
    struct Panel {
        std::array<int, std::size_t{side} * side> counts{};
        std::int64_t balls = 0;
        std::int64_t outside = 0;
        double distances = 0; // m, the sum of all
    };

    static std::string panel(AIDifficulty level, const Panel& panel, int left);

    std::array<Panel, allDifficulties.size()> panels_{};
};

} // namespace vorbel::sim
