// What a surface looks like.
#pragma once

#include "platform/scenegraph/Color.h"

#include <string>

namespace vorbel {

struct Material {
    Color diffuse = colors::white; // alpha below 1 makes the surface a tint over what lies behind it
    std::string picture{}; // resource name (no extension) of a picture shown instead of `diffuse`; or empty
    Color emission = colors::black; // light that the surface gives off, whatever the lights do
    bool doubleSided = false;       // drawn from behind as well
    bool unlit = false;             // shown in its own colours, without lights and shadows
    bool seams = false;             // of leather panels with faint seams; for opaque spheres only
    bool operator==(const Material&) const = default;
};

} // namespace vorbel
