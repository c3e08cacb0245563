// What the spot light's shadow map has to hold of an item.
#pragma once

#include "platform/render/Extent.h"

namespace vorbel {

struct LightBounds {
    // Of the surfaces that are lit and that the camera sees: tangents of angles at the light. What shades
    // them lies between them and the light, at the same angles.
    glm::vec2 low{1e9F};
    glm::vec2 high{-1e9F};
    // Of all that casts a shadow: depths below the light, metres.
    float nearest = 1e9F;
    float farthest = -1e9F;

    [[nodiscard]] bool empty() const { return low.x > high.x; } // nothing is both lit and seen
    void add(const LightBounds& other);
};

// Whether the item stops light: opaque ones do, the floor has nothing below it.
[[nodiscard]] bool castsShadow(const DrawItem& item);

// `toLight` leads from the arena's frame to the light's, which looks along −z.
[[nodiscard]] LightBounds lightBounds(const DrawItem& item, const glm::mat4& toLight,
                                      const Perspective& camera);

} // namespace vorbel
