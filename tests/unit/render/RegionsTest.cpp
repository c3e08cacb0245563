// Gathering of what is drawn anew.
#include "platform/render/Regions.h"

#include <gmock/gmock.h>

namespace vorbel {
namespace {

TEST(RegionsTest, OverlappingOnesBecomeOne) {
    std::vector<PixelRect> regions = {{0, 0, 10, 10}, {2, 2, 12, 12}, {}};
    mergeRegions(regions, 50);
    EXPECT_THAT(regions, testing::ElementsAre(PixelRect{0, 0, 12, 12}));
}

TEST(RegionsTest, DistantOnesStayApart) {
    std::vector<PixelRect> regions = {{0, 0, 10, 10}, {90, 90, 100, 100}};
    mergeRegions(regions, 1000);
    EXPECT_EQ(regions.size(), 2U);
}

TEST(RegionsTest, EdgesAreAlignedOutwardInsideThePicture) {
    EXPECT_EQ(alignedRegion({5, 7, 9, 13}, 100, 100), (PixelRect{4, 4, 12, 16}));
    EXPECT_EQ(alignedRegion({5, 7, 101, 102}, 101, 102), (PixelRect{4, 4, 101, 102}));
}

TEST(RegionsTest, PiecesCoverTheirRegionsAndNeverEachOther) {
    const std::vector<PixelRect> regions = {
        {0, 0, 300, 700}, {0, 0, 40, 60}, {100, 100, 220, 130}, {8, 8, 20, 12}};
    std::vector<Piece> pieces;
    placePieces(regions, 320, 256, pieces);
    long area = 0;
    for (const Piece& piece : pieces) {
        area += piece.part.area();
        EXPECT_TRUE((PixelRect{0, 0, 320, 256}).contains(piece.place()));
        for (const Piece& other : pieces) {
            EXPECT_TRUE(&piece == &other || piece.sheet != other.sheet ||
                        !piece.place().overlaps(other.place()));
        }
    }
    EXPECT_EQ(area, 300 * 700 + 40 * 60 + 120 * 30 + 12 * 4);
}

} // namespace
} // namespace vorbel
