// The sources of all shaders, without version line; see ShaderProgram.
#pragma once

#include <string_view>

namespace vorbel::shaders {

// In front of every shader: the uniform blocks that many of them share, and the function that encodes light.
extern const std::string_view viewBlock;
extern const std::string_view lightBlock;
extern const std::string_view encoding;

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

// Rectangles of the layer, one an instance: the stage with the shadows of the balls on it, and the balls
// themselves. The fragment shaders need the reading of the stage before them. Switches: MIRROR, and
// ADORNED (marks and outlines; the ball's fragment shader needs its adornment before it then).
extern const std::string_view regionVertex;
extern const std::string_view ballVertex;
extern const std::string_view stageReading;
extern const std::string_view regionFragment;
extern const std::string_view ballFragment;
extern const std::string_view ballAdornment;

} // namespace vorbel::shaders
