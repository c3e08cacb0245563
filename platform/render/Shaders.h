// The sources of all shaders, without version line; see ShaderProgram.
#pragma once

#include <string_view>

namespace vorbel::shaders {

// In front of every shader: the uniform block that many of them share.
extern const std::string_view viewBlock;

// Surfaces. Switches: PICTURE (else one colour), UNLIT, MIRROR (image in the floor), FLOOR, DEPTH
// (no colour is written).
extern const std::string_view surfaceVertex;
extern const std::string_view surfaceFragment;

// A triangle over the whole viewport, at the far plane.
extern const std::string_view screenVertex;
extern const std::string_view fillFragment; // the background as the floor mirrors it
extern const std::string_view copyFragment; // a picture, turned upside down

// Rectangles, one an instance.
extern const std::string_view pieceVertex;
extern const std::string_view encodeFragment; // linear light to dithered sRGB

} // namespace vorbel::shaders
