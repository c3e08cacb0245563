// The builders of the arena under the names by which a match offers them: each forwards to the room scene/.
#pragma once

#include "scene/Arena.h"
#include "scene/Ball.h"
#include "scene/CourtLines.h"
#include "scene/FlagDesigns.h"
#include "scene/Flags.h"
#include "scene/Referee.h"
#include "scene/Stands.h"
#include "scene/ThrowingBoxes.h"

#include <span>

namespace vorbel {

struct ArenaBuilders {
    [[nodiscard]] static Scene create3DScene(RandomSource& random) { return arena::makeArena(random); }
    static void addCourtLine(Scene& scene, const Vec3& from, const Vec3& to) {
        arena::addCourtLine(scene, from, to);
    }
    static void addThrowingBoxes(Scene& scene, double courtWidth) {
        arena::addThrowingBoxes(scene, courtWidth);
    }
    [[nodiscard]] static Node::Ptr makeRestingJack(const Vec3& position) {
        return vorbel::makeRestingJack(position);
    }
    static void addStands(Scene& scene, double courtWidth, double courtLength, RandomSource& random) {
        arena::addStands(scene, courtWidth, courtLength, random);
    }
    [[nodiscard]] static Node::Ptr makeSpectatorBillboard(const arena::SpectatorSprite& sprite,
                                                          double height) {
        return arena::makeSpectatorBillboard(sprite, height);
    }
    static void addFlags(Scene& scene) { arena::addFlags(scene); }
    [[nodiscard]] static Node::Ptr makeStripedFlag(std::span<const Color> stripes, bool horizontal,
                                                   double width, double height) {
        return arena::makeStripedFlag(stripes, horizontal, width, height);
    }
    [[nodiscard]] static Node::Ptr makeCircleFlag(const Color& background, const Color& circle, double width,
                                                  double height) {
        return arena::makeCircleFlag(background, circle, width, height);
    }
    [[nodiscard]] static Node::Ptr makeCrossFlag(const Color& background, const Color& cross,
                                                 const Color& inner, double width, double height) {
        return arena::makeCrossFlag(background, cross, inner, width, height);
    }
    [[nodiscard]] static Node::Ptr makeCantonFlag(const Color& field, double width, double height) {
        return arena::makeCantonFlag(field, width, height);
    }
    [[nodiscard]] static Node::Ptr makeKoreaFlag(double width, double height) {
        return arena::makeKoreaFlag(width, height);
    }
    [[nodiscard]] static Node::Ptr makeStarFlag(double width, double height) {
        return arena::makeStarFlag(width, height);
    }
    [[nodiscard]] static Node::Ptr makeReferee(double courtWidth, double courtLength) {
        return arena::makeReferee(courtWidth, courtLength);
    }
};

} // namespace vorbel
