#include "platform/render/TrackedBalls.h"

#include "platform/render/Regions.h"

#include <algorithm>

#include <glm/geometric.hpp>

namespace vorbel {

namespace {

constexpr long regionOverhead = 400; // pixels: regions that this many more unite are united

Extent extentOf(const DrawnBall& ball) {
    Extent extent;
    extent.margin = ball.radius;
    extent.add(ball.centre);
    return extent;
}

// Holds all points of which the shader says that a ball is just above.
Extent groundBelow(const DrawnBall& ball, const std::optional<glm::vec4>& floor) {
    constexpr float aside = 2.1F; // radii
    constexpr float below = 3.4F; // radii
    const float above = floor ? glm::dot(glm::vec3(*floor), ball.centre) + floor->w : below * ball.radius;
    const float depth = std::clamp(above, 0.0F, below * ball.radius);
    Extent extent;
    for (const float y : {0.0F, -depth}) {
        for (const glm::vec2 side : {glm::vec2(-1, -1), {1, -1}, {-1, 1}, {1, 1}}) {
            extent.add(ball.centre +
                       glm::vec3(side.x * aside * ball.radius, y, side.y * aside * ball.radius));
        }
    }
    return extent;
}

// With room for the outline. The usual one is a pixel and a half wide in pictures of 800 lines; the two lines around an
// outlined ball have three and a half together there, and no less in smaller pictures.
PixelRect withEdge(const PixelRect& rect, const Perspective& view, bool outlined) {
    const int edge = outlined ? 4 + view.height / 200 : 2 + view.height / 400;
    return rect.empty() ? rect
                        : common({rect.left - edge, rect.bottom - edge, rect.right + edge, rect.top + edge},
                                 {0, 0, view.width, view.height});
}

BallTraces tracesOf(const DrawnBall& ball, const TrackedFrame& rest) {
    const Frame& frame = rest.frame();
    const Perspective& view = rest.view();
    const DrawItem* floorItem = floorOf(frame);
    const auto floor = floorItem != nullptr ? std::optional(planeOf(*floorItem)) : std::nullopt;
    const Extent extent = extentOf(ball);
    BallTraces traces{ball, withEdge(view.bounds(extent), view, ball.outlined), {}, {}};
    traces.all = united(traces.seen, view.bounds(groundBelow(ball, floor)));
    const bool isAboveFloor = floor && glm::dot(glm::vec3(*floor), ball.centre) + floor->w > 0;
    if (isAboveFloor) {
        traces.mirror = withEdge(view.bounds(mirrored(extent, *floor)), view, false);
        traces.mirror = rest.hidesFloor(traces.mirror) ? PixelRect{} : traces.mirror;
        traces.all = united(traces.all, traces.mirror);
    }
    if (frame.spot && frame.spot->castsShadow) {
        const float blur = blurOf(*frame.spot, rest.frustum());
        traces.all =
            united(traces.all, view.bounds(shadowExtent(extent, *frame.spot, rest.frustum(), blur, floor)));
    }
    return traces;
}

bool touches(const PixelRect& region, const PixelRect& rect) {
    return region.overlaps(rect) && !region.contains(rect);
}

} // namespace

void TrackedBalls::replaceBalls(const std::vector<DrawnBall>& next, const TrackedFrame& rest) {
    std::swap(balls_, former_);
    balls_.clear();
    for (const DrawnBall& ball : next) {
        const auto same =
            std::ranges::find_if(former_, [&](const BallTraces& former) { return former.ball == ball; });
        if (same != former_.end() && !whole_) {
            balls_.push_back(*same);
            former_.erase(same);
        } else {
            balls_.push_back(tracesOf(ball, rest));
            regions_.push_back(balls_.back().all);
        }
    }
    if (!whole_) {
        std::ranges::transform(former_, std::back_inserter(regions_), &BallTraces::all);
    }
    const glm::vec3 eye(rest.frame().camera.world[3]);
    std::ranges::sort(balls_, std::greater{},
                      [&](const BallTraces& traces) { return glm::distance(eye, traces.ball.centre); });
}

void TrackedBalls::widenRegions() {
    for (bool wider = true; wider;) {
        wider = false;
        for (PixelRect& region : regions_) {
            for (const BallTraces& traces : balls_) {
                for (const PixelRect& rect : {traces.seen, traces.mirror}) {
                    wider = wider || touches(region, rect);
                    region = touches(region, rect) ? united(region, rect) : region;
                }
            }
        }
    }
}

void TrackedBalls::follow(const std::vector<DrawnBall>& next, const TrackedFrame& rest,
                          const Damage& damage) {
    whole_ = damage.picture;
    regions_.clear();
    if (!whole_) {
        for (const PixelRect& part : damage.seen) {
            regions_.push_back(alignedRegion(part, rest.view().width, rest.view().height));
        }
    }
    replaceBalls(next, rest);
    mergeRegions(regions_, regionOverhead);
    widenRegions();
}

} // namespace vorbel
