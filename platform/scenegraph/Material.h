// What a surface looks like.
#pragma once

#include "platform/scenegraph/Color.h"

#include <cstdint>
#include <string>

namespace vorbel {

// A sign on a ball that tells it from others without its colour.
enum class Mark : std::uint8_t { none, ring, cross };

struct Material {
    Color diffuse = colors::white; // alpha below 1 makes the surface a tint over what lies behind it
    std::string picture{}; // resource name (no extension) of a picture shown instead of `diffuse`; or empty
    Color emission = colors::black; // light that the surface gives off, whatever the lights do
    bool doubleSided = false;       // drawn from behind as well
    bool unlit = false;             // shown in its own colours, without lights and shadows
    bool seams = false;             // of leather panels with faint seams; for opaque spheres only
    // Of spheres with seams. A mark always faces the viewer, white or black, whichever the colour sets off; the lit
    // ball keeps a contrast of at least 3 to it.
    Mark mark = Mark::none;
    bool outlined = false; // a black line around it and a white one around that
    bool operator==(const Material&) const = default;
};

} // namespace vorbel
