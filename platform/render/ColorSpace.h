// Between the screen's encoding of colours and amounts of light.
#pragma once

#include "platform/scenegraph/Color.h"

#include <cmath>

#include <glm/vec3.hpp>

namespace vorbel {

// One sRGB-encoded component in 0…1 as linear light in 0…1.
inline float linearLight(float encoded) {
    return encoded <= 0.04045F ? encoded / 12.92F : std::pow((encoded + 0.055F) / 1.055F, 2.4F);
}

// One component of linear light in 0…1, sRGB-encoded in 0…1.
inline float encodedLight(float linear) {
    return linear <= 0.0031308F ? linear * 12.92F : 1.055F * std::pow(linear, 1 / 2.4F) - 0.055F;
}

// Without alpha.
inline glm::vec3 linearLight(const Color& color) {
    return {linearLight(color.red), linearLight(color.green), linearLight(color.blue)};
}

} // namespace vorbel
