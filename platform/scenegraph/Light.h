// Light sources and the camera. Both shine or look along their node's −z axis.
#pragma once

#include "platform/scenegraph/Color.h"

namespace vorbel {

struct Light {
    enum class Type { ambient, spot };

    Type type = Type::ambient;
    Color color = colors::white;
    double intensity = 1000; // per thousand: 1000 lights a white surface that faces the light to full white

    // Spot lights only. Angles from the axis, degrees: full strength within the inner, none beyond the outer.
    double spotInnerAngle = 0;
    double spotOuterAngle = 45;
    bool castsShadow = false;
    int shadowMapSize = 2048;  // texels along each edge of the square depth map
    int shadowSampleCount = 1; // depth comparisons averaged for one shaded point
    double shadowBias = 0;     // depth offset against self-shadowing, metres along the light's ray
    double shadowRadius = 0;   // radius of the sampled disc, in texels
    bool operator==(const Light&) const = default;
};

// Perspective camera.
struct Camera {
    double fieldOfView = 60; // vertical, degrees
    double zNear = 0.1;      // metres
    double zFar = 60;        // metres; the arena floor fades into the background before it
    bool operator==(const Camera&) const = default;
};

} // namespace vorbel
