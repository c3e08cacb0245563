// Two banks of stepped stands along the court, filled with cut-out spectators.
#pragma once

#include "platform/random/RandomSource.h"
#include "platform/scenegraph/Scene.h"

#include <string_view>

namespace vorbel::arena {

// A picture by its resource name, with its width divided by its height.
struct SpectatorSprite {
    std::string_view picture;
    double aspectRatio;
};

// Lengths in metres. The random source says who sits where: differently in every run of the game.
void addStands(Scene& scene, double courtWidth, double courtLength, RandomSource& random);

// Facing +z, standing on nothing yet: `height` metres, its width as the picture's.
[[nodiscard]] Node::Ptr makeSpectatorBillboard(const SpectatorSprite& sprite, double height);

} // namespace vorbel::arena
