#include "tools/sim/RestPlot.h"

#include "tools/sim/Levels.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace vorbel::sim {

namespace {

constexpr double square = 0.05; // m
constexpr int pixels = 5;       // of the picture, a square's side
constexpr int margin = 20;      // pixels
constexpr int caption = 60;     // pixels above each panel
constexpr double ring = 0.5;    // m between rings

constexpr const char* ink = "#1b3a5c";

void writeRings(std::ostream& out, double middleX, double middleY) {
    constexpr int rings = 3;
    for (int i = 1; i <= rings; ++i) {
        out << "<circle cx='" << middleX << "' cy='" << middleY << "' r='" << i * ring / square * pixels
            << "' fill='none' stroke='#999'/>\n";
    }
    out << "<circle cx='" << middleX << "' cy='" << middleY << "' r='" << pixels * 0.7
        << "' fill='white' stroke='black'/>\n";
}

} // namespace

void RestPlot::add(const RestingPlace& place) {
    Panel& panel = panels_[static_cast<std::size_t>(place.level)];
    panel.balls += 1;
    panel.distances += std::hypot(place.right, place.beyond);
    const double column = std::floor(place.right / square) + side / 2.0;
    const double row = side / 2.0 - 1 - std::floor(place.beyond / square);
    if (column < 0 || column >= side || row < 0 || row >= side) {
        panel.outside += 1;
        return;
    }
    panel.counts[static_cast<std::size_t>(row) * side + static_cast<std::size_t>(column)] += 1;
}

std::string RestPlot::panel(AIDifficulty level, const Panel& panel, int left) {
    constexpr double percent = 100;
    constexpr double width = side * pixels;
    const int most = std::max(1, *std::ranges::max_element(panel.counts));
    const auto balls = static_cast<double>(panel.balls);
    std::ostringstream out;
    out << std::fixed << std::setprecision(2) << "<text x='" << left << "' y='28' font-size='20'>"
        << levelName(level) << "</text>\n<text x='" << left << "' y='50'>" << panel.balls << " balls, mean "
        << panel.distances / balls << " m, " << percent * static_cast<double>(panel.outside) / balls
        << " % outside</text>\n<rect x='" << left << "' y='" << caption << "' width='" << width
        << "' height='" << width << "' fill='#f4f1ea'/>\n";
    for (std::size_t i = 0; i < panel.counts.size(); ++i) {
        if (panel.counts[i] > 0) {
            // By the root, or the crowd around the jack would leave the rest white.
            out << "<rect x='" << left + static_cast<int>(i % side) * pixels << "' y='"
                << caption + static_cast<int>(i / side) * pixels << "' width='" << pixels << "' height='"
                << pixels << "' fill='" << ink << "' fill-opacity='"
                << std::sqrt(static_cast<double>(panel.counts[i]) / most) << "'/>\n";
        }
    }
    writeRings(out, left + width / 2, caption + width / 2);
    return out.str();
}

std::string RestPlot::svg() const {
    constexpr int step = side * pixels + margin;
    std::string panels;
    int left = margin;
    for (const AIDifficulty level : allDifficulties) {
        if (const Panel& shown = panels_[static_cast<std::size_t>(level)]; shown.balls > 0) {
            panels += panel(level, shown, left);
            left += step;
        }
    }
    std::ostringstream out;
    out << "<svg xmlns='http://www.w3.org/2000/svg' width='" << left << "' height='" << caption + step
        << "' font-family='sans-serif' font-size='14'>\n<rect width='100%' height='100%' fill='white'/>\n"
        << panels << "</svg>\n";
    return out.str();
}

} // namespace vorbel::sim
