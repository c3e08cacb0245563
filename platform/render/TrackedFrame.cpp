#include "platform/render/TrackedFrame.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

#include <glm/geometric.hpp>
#include <glm/matrix.hpp>

namespace vorbel {

namespace {

constexpr long smallestScreen = 4096; // pixels: a smaller box hides the floor in no region worth a test

bool looksTheSame(const DrawItem& a, const DrawItem& b) {
    return a.opacity == b.opacity && a.shape == b.shape && a.material == b.material;
}

bool mayHide(const DrawItem& item, const ItemBounds& bounds) {
    const auto* box = std::get_if<Box>(&item.shape);
    return box != nullptr && box->chamferRadius == 0 && !isSeeThrough(item) &&
           item.material.picture.empty() && bounds.seen.area() >= smallestScreen;
}

} // namespace

const DrawItem* floorOf(const Frame& frame) {
    const auto floor = std::ranges::find_if(frame.items, isFloor);
    return floor == frame.items.end() ? nullptr : &*floor;
}

glm::vec4 planeOf(const DrawItem& floor) {
    const glm::vec3 normal = glm::normalize(glm::vec3(floor.world[1]));
    return {normal, -glm::dot(normal, glm::vec3(floor.world[3]))};
}

const Damage& TrackedFrame::follow(const Frame& next, int width, int height) {
    damage_.picture = damage_.shadowMap = damage_.looks = false;
    damage_.seen.clear();
    damage_.lit.clear();
    damage_.moved.clear();
    const bool viewDiffers = followView(next, width, height);
    const bool spotDiffers = followSpot(next);
    const bool itemsDiffer = followItems(next.items);
    if (viewDiffers || spotDiffers) {
        measureAll();
    }
    const bool shadowsDiffer = (itemsDiffer || viewDiffers || spotDiffers) && followShadows();
    damage_.shadowMap = spotDiffers || shadowsDiffer;
    damage_.picture = damage_.picture || damage_.shadowMap || viewDiffers || next.ambient != frame_.ambient;
    frame_.ambient = next.ambient;
    if (damage_.picture) {
        measureAll();
    }
    drawn_ = false;
    return damage_;
}

bool TrackedFrame::followItems(const std::vector<DrawItem>& next) {
    std::vector<DrawItem>& items = frame_.items;
    if (!std::ranges::equal(items, next, {}, &DrawItem::node, &DrawItem::node)) {
        restructure(next);
        return true;
    }
    for (std::size_t i = 0; i < next.size(); ++i) {
        if (items[i] != next[i]) {
            replace(i, next[i]);
        }
    }
    return !damage_.moved.empty();
}

void TrackedFrame::replace(std::size_t index, const DrawItem& next) {
    DrawItem& item = frame_.items[index];
    damage_.looks = damage_.looks || !looksTheSame(item, next) || isSeeThrough(next);
    damage_.picture = damage_.picture || isFloor(next);
    damage_.moved.push_back(index);
    mark(bounds_[index]);
    item = next;
    bounds_[index] = measure(item);
    mark(bounds_[index]);
}

// Items came or went. Those that stay in their order and do not differ leave no damage.
void TrackedFrame::restructure(const std::vector<DrawItem>& next) {
    damage_.looks = true;
    std::unordered_map<const void*, std::size_t> places;
    for (std::size_t i = 0; i < frame_.items.size(); ++i) {
        places.emplace(frame_.items[i].node, i);
    }
    std::vector<ItemBounds> bounds;
    std::size_t from = 0;
    for (const DrawItem& item : next) {
        const auto place = places.find(item.node);
        if (place != places.end() && place->second >= from && frame_.items[place->second] == item) {
            std::for_each(bounds_.begin() + static_cast<std::ptrdiff_t>(from),
                          bounds_.begin() + static_cast<std::ptrdiff_t>(place->second),
                          [this](const ItemBounds& gone) { mark(gone); });
            bounds.push_back(bounds_[place->second]);
            from = place->second + 1;
        } else {
            damage_.picture = damage_.picture || isFloor(item);
            bounds.push_back(measure(item));
            mark(bounds.back());
        }
    }
    std::for_each(bounds_.begin() + static_cast<std::ptrdiff_t>(from), bounds_.end(),
                  [this](const ItemBounds& gone) { mark(gone); });
    const std::ptrdiff_t floors = std::ranges::count_if(frame_.items, isFloor);
    frame_.items = next;
    bounds_ = std::move(bounds);
    damage_.picture = damage_.picture || floors != (floorOf(frame_) != nullptr ? 1 : 0);
}

bool TrackedFrame::followSpot(const Frame& next) {
    std::optional<SpotLight> spot = next.spot;
    if (spot) {
        spot->shadowMapSize = std::clamp(spot->shadowMapSize, 1, largestShadowMap_);
    }
    const bool same = drawn_ && spot == frame_.spot;
    frame_.spot = spot;
    toLight_ = spot ? lightView(*spot) : glm::mat4(1);
    return !same;
}

// Whether the shadow map has to hold something else than before.
bool TrackedFrame::followShadows() {
    ShadowFrustum frustum;
    if (frame_.spot) {
        LightBounds all;
        for (const ItemBounds& bounds : bounds_) {
            all.add(bounds.light);
        }
        frustum = shadowFrustum(*frame_.spot, all);
        const int size = frame_.spot->shadowMapSize;
        light_ = {frustum.view, frustum.halfWidth, size, size, frustum.zNear, frustum.middle};
    }
    return std::exchange(frustum_, frustum) != frustum;
}

bool TrackedFrame::followView(const Frame& next, int width, int height) {
    const bool same = drawn_ && next.camera == frame_.camera && next.background == frame_.background &&
                      width == view_.width && height == view_.height;
    frame_.camera = next.camera;
    frame_.background = next.background;
    view_ = perspective(next.camera, width, height);
    return !same;
}

void TrackedFrame::measureAll() {
    const DrawItem* floor = floorOf(frame_);
    floor_ = floor != nullptr ? std::optional(planeOf(*floor)) : std::nullopt;
    bounds_.clear();
    for (const DrawItem& item : frame_.items) {
        bounds_.push_back(measure(item));
    }
}

ItemBounds TrackedFrame::measure(const DrawItem& item) const {
    ItemBounds bounds;
    if (isFloor(item)) {
        bounds.seen = {0, 0, view_.width, view_.height};
        return bounds;
    }
    const Extent extent = extentOf(item);
    bounds.seen = view_.bounds(extent);
    if (floor_) {
        bounds.mirror = view_.bounds(mirrored(extent, *floor_));
    }
    if (!frame_.spot || !frame_.spot->castsShadow) {
        return bounds;
    }
    bounds.light = lightBounds(item, toLight_, view_);
    if (castsShadow(item)) {
        const float texel = 2 * std::max(frustum_.halfWidth.x, frustum_.halfWidth.y) /
                            static_cast<float>(frame_.spot->shadowMapSize);
        const float blur = (frame_.spot->shadowRadius + 2) * texel; // and two texels of filtering
        bounds.shadow = view_.bounds(shadowExtent(extent, *frame_.spot, frustum_, blur, floor_));
        bounds.lit = light_.bounds(extent);
    }
    return bounds;
}

void TrackedFrame::mark(const ItemBounds& bounds) {
    PixelRect part = united(bounds.seen, bounds.shadow);
    if (!hidesFloor(bounds.mirror)) {
        part = united(part, bounds.mirror);
    }
    if (!part.empty()) {
        damage_.seen.push_back(part);
    }
    if (!bounds.lit.empty()) {
        damage_.lit.push_back(bounds.lit);
    }
}

namespace {

// Whether all four rays from the eye through the corners of a part of the picture enter the box through the
// same face, above the floor.
bool coversAll(const DrawItem& box, const glm::vec4& floor, const glm::vec3& eye,
               const std::array<glm::vec3, 4>& rays) {
    const auto& shape = std::get<Box>(box.shape);
    const glm::vec3 half(glm::dvec3(shape.width, shape.height, shape.length) / 2.0);
    const glm::mat4 toBox = glm::inverse(box.world);
    const glm::vec3 from(toBox * glm::vec4(eye, 1));
    const auto enters = [&](const glm::vec3& ray, int axis) {
        const glm::vec3 along(toBox * glm::vec4(ray, 0));
        const float side = from[axis] > 0 ? half[axis] : -half[axis];
        const float distance = (side - from[axis]) / along[axis];
        const glm::vec3 point = from + distance * along;
        const bool onFace = std::abs(point[(axis + 1) % 3]) < half[(axis + 1) % 3] &&
                            std::abs(point[(axis + 2) % 3]) < half[(axis + 2) % 3];
        return std::abs(from[axis]) > half[axis] && distance > 0 && onFace &&
               glm::dot(glm::vec3(floor), eye + distance * ray) + floor.w > 0;
    };
    for (int axis = 0; axis < 3; ++axis) {
        if (std::ranges::all_of(rays, [&](const glm::vec3& ray) { return enters(ray, axis); })) {
            return true;
        }
    }
    return false;
}

} // namespace

bool TrackedFrame::hidesFloor(const PixelRect& part) const {
    if (!floor_ || part.empty()) {
        return true;
    }
    std::array<glm::vec3, 4> rays{};
    const glm::mat3 toArena(frame_.camera.world);
    for (std::size_t i = 0; i < rays.size(); ++i) {
        const glm::vec2 pixel((i & 1U) != 0 ? part.right : part.left, (i & 2U) != 0 ? part.top : part.bottom);
        const glm::vec2 size(view_.width, view_.height);
        rays[i] = toArena * glm::vec3((pixel / size * 2.0F - 1.0F) * view_.halfWidth, -1);
    }
    const glm::vec3 eye(frame_.camera.world[3]);
    for (std::size_t i = 0; i < bounds_.size(); ++i) {
        if (bounds_[i].seen.contains(part) && mayHide(frame_.items[i], bounds_[i]) &&
            coversAll(frame_.items[i], *floor_, eye, rays)) {
            return true;
        }
    }
    return false;
}

} // namespace vorbel
