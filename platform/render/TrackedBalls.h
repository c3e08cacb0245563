// The balls that were drawn last, and where new ones change the picture.
#pragma once

#include "platform/render/TrackedFrame.h"

namespace vorbel {

// A ball and where it leaves traces in the picture; empty rectangles where it leaves none.
struct BallTraces {
    DrawnBall ball;
    PixelRect seen;
    PixelRect mirror; // its image in the floor
    PixelRect all;    // both, its shadow, and where it takes light from what is just below
};

class TrackedBalls {
public:
    // Takes the place of the last balls. `rest` has followed all else of the same frame, with that damage.
    void follow(const std::vector<DrawnBall>& next, const TrackedFrame& rest, const Damage& damage);

    // Of the last frame, the farthest from the camera first.
    [[nodiscard]] const std::vector<BallTraces>& balls() const { return balls_; }

    // What is to be drawn anew: the whole picture without balls, then the regions. A ball or its image
    // that a region touches lies inside it.
    [[nodiscard]] bool whole() const { return whole_; }
    [[nodiscard]] const std::vector<PixelRect>& regions() const { return regions_; }

private:
    void replaceBalls(const std::vector<DrawnBall>& next, const TrackedFrame& rest);
    void widenRegions();

    bool whole_ = false;
    std::vector<BallTraces> balls_;
    std::vector<BallTraces> former_;
    std::vector<PixelRect> regions_;
};

} // namespace vorbel
