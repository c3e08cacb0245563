// What is drawn of the balls, as the shaders read it.
#pragma once

#include "platform/render/TrackedBalls.h"

#include <array>

#include <glm/vec4.hpp>

namespace vorbel {

// A rectangle of the layer; for regions only the first two members count.
struct BallQuad {
    glm::vec4 part{0};   // left, lower, right, upper edge: fractions of the layer, which is upside down
    glm::vec2 listed{0}; // the first of the places that matter there, and how many
    glm::vec4 placed{0}; // centre; w: radius
    glm::mat3 orientation{1};
    glm::vec3 diffuse{0};
    glm::vec3 emission{0};
    glm::vec2 look{0}; // its Mark as a number; 1: outlined
};

inline constexpr std::size_t mostPlaces = 512;

struct BallUniforms {
    glm::vec4 rayCorner{0};
    glm::vec4 rayX{0};
    glm::vec4 rayY{0};
    glm::vec4 floorPlane{0};
    std::array<glm::vec4, mostPlaces> places{};
};

class BallPlan {
public:
    // Keeps its memory.
    void make(const TrackedBalls& balls, const TrackedFrame& rest);

    [[nodiscard]] const BallUniforms& uniforms() const { return uniforms_; }
    [[nodiscard]] const std::vector<BallQuad>& quads() const { return quads_; } // regions, images, balls
    [[nodiscard]] std::size_t regions() const { return regions_; }
    [[nodiscard]] std::size_t images() const { return images_; }
    [[nodiscard]] std::size_t balls() const { return quads_.size() - regions_ - images_; }
    [[nodiscard]] bool adorned() const { return adorned_; } // whether some ball is marked or outlined

private:
    void setView(const TrackedFrame& rest);
    glm::vec2 list(const TrackedBalls& balls, const PixelRect& part, const BallTraces* except);
    [[nodiscard]] glm::vec4 placeOf(const PixelRect& part) const;
    void addBalls(const TrackedBalls& balls, PixelRect BallTraces::*kind);

    BallUniforms uniforms_;
    std::size_t usedPlaces_ = 0;
    std::vector<BallQuad> quads_;
    std::size_t regions_ = 0;
    std::size_t images_ = 0;
    bool adorned_ = false;
    glm::vec2 size_{1}; // pixels
};

} // namespace vorbel
