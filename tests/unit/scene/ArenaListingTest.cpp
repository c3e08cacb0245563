// The whole arena against the lists beside this file: of every node its shape, place, colour, light and body.
#include "scene/Arena.h"
#include "scene/FlagDesigns.h"
#include "scene/Stands.h"
#include "tests/unit/scene/Listing.h"

#include <gtest/gtest.h>

namespace vorbel::test {

namespace {

const std::filesystem::path folder = VORBEL_LISTINGS;

// A random source that always draws the same share of a range, so that what it decides can be told.
class Share final : public RandomSource {
public:
    explicit Share(std::uint64_t bits) : bits_(bits) {}

private:
    std::uint64_t next() override { return bits_; }
    std::uint64_t bits_;
};

bool isSpectator(const std::string& line) {
    return line.find("Spectator") != std::string::npos;
}

} // namespace

TEST(ArenaListingTest, EverythingButTheSpectatorsIsWhereAndAsItIsListed) {
    SeededRandom random(1);
    std::vector<std::string> lines = listingOf(arena::makeArena(random));
    EXPECT_EQ(std::erase_if(lines, isSpectator), 360U);
    expectListed(lines, folder / "arena.list");
}

TEST(ArenaListingTest, SpectatorsFillTheStandsAsTheirRandomSourceSays) {
    SeededRandom random(1);
    Scene stands;
    arena::addStands(stands, 6, 12.5, random);
    expectListed(listingOf(stands), folder / "stands.list");
}

TEST(ArenaListingTest, TheLowestDrawsGiveTheSmallestSpectatorsAtTheirNearestPlaces) {
    Share lowest(0);
    Scene stands;
    arena::addStands(stands, 6, 12.5, lowest);
    const Node& first = *stands.root->children()[1]; // behind the first step
    const auto& plane = std::get<Plane>(first.geometry->shape);
    EXPECT_EQ(first.geometry->material.picture, "SpectatorBrazil1");
    EXPECT_DOUBLE_EQ(plane.height, 0.32);
    EXPECT_DOUBLE_EQ(plane.width, 0.32 * 447 / 796);
    EXPECT_NEAR(first.position().x, 4.3 - 0.05, 1e-12);
    EXPECT_NEAR(first.position().y, 0.35 + 0.16, 1e-12);
    EXPECT_NEAR(first.position().z, -12.5 + 12.5 / 72 - 0.12, 1e-12);
}

TEST(ArenaListingTest, FlagsOfAnySizeKeepTheirProportions) {
    Scene flags;
    const std::vector stripes{colors::black, colors::white, colors::systemRed};
    for (const Node::Ptr& flag :
         {arena::makeStripedFlag(stripes, true, 4, 3), arena::makeStripedFlag(stripes, false, 4, 3),
          arena::makeCircleFlag(colors::white, colors::systemRed, 4, 3),
          arena::makeCrossFlag(colors::white, colors::systemRed, colors::black, 4, 3),
          arena::makeCantonFlag(colors::white, 4, 3), arena::makeKoreaFlag(4, 3),
          arena::makeStarFlag(4, 3)}) {
        flags.root->addChild(flag);
    }
    expectListed(listingOf(flags), folder / "flags.list");
}

} // namespace vorbel::test
