#include "platform/render/BallPlan.h"

#include <algorithm>

namespace vorbel {

void BallPlan::setView(const TrackedFrame& rest) {
    const Perspective& view = rest.view();
    const glm::mat4& camera = rest.frame().camera.world;
    size_ = {view.width, view.height};
    const glm::vec4 right = view.halfWidth.x * camera[0];
    const glm::vec4 up = view.halfWidth.y * camera[1];
    uniforms_.rayCorner = up - right - camera[2];
    uniforms_.rayX = 2.0F / size_.x * right;
    uniforms_.rayY = -2.0F / size_.y * up;
    const DrawItem* floor = floorOf(rest.frame());
    uniforms_.floorPlane = floor != nullptr ? planeOf(*floor) : glm::vec4(0);
}

glm::vec4 BallPlan::placeOf(const PixelRect& part) const {
    return glm::vec4(part.left, size_.y - static_cast<float>(part.top), part.right,
                     size_.y - static_cast<float>(part.bottom)) /
           glm::vec4(size_, size_);
}

// The balls that change something there; all when there is no room for one more list.
glm::vec2 BallPlan::list(const TrackedBalls& balls, const PixelRect& part, const BallTraces* except) {
    const std::size_t count = balls.balls().size();
    if (usedPlaces_ + count > mostPlaces) {
        return {0, count};
    }
    const std::size_t first = usedPlaces_;
    for (const BallTraces& traces : balls.balls()) {
        if (&traces != except && traces.all.overlaps(part)) {
            uniforms_.places[usedPlaces_++] = glm::vec4(traces.ball.centre, traces.ball.radius);
        }
    }
    return {first, usedPlaces_ - first};
}

void BallPlan::addBalls(const TrackedBalls& balls, PixelRect BallTraces::*kind) {
    const auto isDrawn = [&](const PixelRect& rect) {
        return !rect.empty() &&
               (balls.whole() || std::ranges::any_of(balls.regions(), [&](const auto& region) {
                    return region.overlaps(rect);
                }));
    };
    for (const BallTraces& traces : balls.balls()) {
        const PixelRect& rect = traces.*kind;
        if (isDrawn(rect)) {
            const BallTraces* self = kind == &BallTraces::seen ? &traces : nullptr;
            const DrawnBall& ball = traces.ball;
            quads_.push_back({placeOf(rect), list(balls, rect, self), glm::vec4(ball.centre, ball.radius),
                              ball.orientation, ball.diffuse, ball.emission,
                              glm::vec2(static_cast<float>(ball.mark), ball.outlined ? 1 : 0)});
        }
    }
}

void BallPlan::make(const TrackedBalls& balls, const TrackedFrame& rest) {
    setView(rest);
    quads_.clear();
    usedPlaces_ = 0;
    const PixelRect all{0, 0, rest.view().width, rest.view().height};
    list(balls, all, nullptr); // for those who find no room
    if (balls.whole()) {
        quads_.push_back({placeOf(all), {0, 0}});
    }
    for (const PixelRect& region : balls.regions()) {
        quads_.push_back({placeOf(region), list(balls, region, nullptr)});
    }
    regions_ = quads_.size();
    addBalls(balls, &BallTraces::mirror);
    images_ = quads_.size() - regions_;
    addBalls(balls, &BallTraces::seen);
    adorned_ = std::ranges::any_of(quads_, [](const BallQuad& quad) { return quad.look != glm::vec2(0); });
}

} // namespace vorbel
