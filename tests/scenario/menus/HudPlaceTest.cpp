// The display leaves the arena to be seen: its strip ends above the flags, in every language.
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/LayoutCheck.h"
#include "tests/scenario/menus/MenuWindow.h"

#include "platform/render/Extent.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vorbel {

namespace {

constexpr double flagHalfWidth = 0.23; // metres
constexpr double flagHalfHeight = 0.16;

} // namespace

class HudPlaceTest : public testing::TestWithParam<AppLanguage> {
protected:
    MenuWindow game;
    MatchState& match = MatchSetup(game.view().gameLogic()).state();

    HudPlaceTest() {
        game.setLanguage(GetParam());
        game.open(MenuScreen::hidden);
        game.view().settings()->setSelectedCountry(longestNamed(GetParam()));
        match.tournamentActive = true;
        match.tournamentRound = 2;
        game.view().gameLogic().blueCountry = longestNamed(GetParam());
        game.settle();
        game.layOut();
    }

    [[nodiscard]] std::vector<QQuickItem*> all(const char* type) {
        std::vector<QQuickItem*> found;
        collect(
            *game.window().contentItem(), [type](QQuickItem& item) { return isOfType(item, type); }, found);
        return found;
    }
    // Where the window shows flags, in its pixels from the upper left corner.
    [[nodiscard]] std::vector<QRectF> flags() {
        const Frame frame = makeFrame(game.view().gameLogic().scene, 1);
        const QSize size = game.window().size();
        const Perspective camera = perspective(frame.camera, size.width(), size.height());
        std::vector<QRectF> places;
        for (const Node::Ptr& node : game.view().gameLogic().scene.root->children()) {
            const Vec3 middle = node->position();
            if (middle.z != -9.9 || middle.y < 1) {
                continue;
            }
            Extent corners;
            for (const double x : {-flagHalfWidth, flagHalfWidth}) {
                for (const double y : {-flagHalfHeight, flagHalfHeight}) {
                    corners.add(glm::vec3(middle + Vec3(x, y, 0)));
                }
            }
            const PixelRect seen = camera.bounds(corners);
            places.emplace_back(seen.left, size.height() - seen.top, seen.width(), seen.height());
        }
        return places;
    }
};

TEST_P(HudPlaceTest, NoPanelCoversAFlag) {
    const std::vector<QRectF> places = flags();
    ASSERT_EQ(places.size(), countryCount);
    for (const char* type : {"MatchPanel", "SidePanel"}) {
        for (const QQuickItem* panel : all(type)) {
            const auto covered = std::ranges::count_if(
                places, [panel](const QRectF& flag) { return inScene(*panel).intersects(flag); });
            EXPECT_EQ(covered, 0) << type << " ends at " << inScene(*panel).bottom();
        }
    }
}

TEST_P(HudPlaceTest, TheStripHasTwoLinesAndTheRampsHintOne) {
    const qreal height = all("MatchPanel").at(0)->height();
    EXPECT_LT(height, 2 * 20 + 2 * 30) << "two lines, also of high letters, and the padding";
    game.view().settings()->setSelectedClass(BocciaClass::bc3);
    game.settle();
    game.layOut();
    EXPECT_LT(all("MatchPanel").at(0)->height(), height + 24);
}

TEST_P(HudPlaceTest, ThePanelsStandApart) {
    const QRectF strip = inScene(*all("MatchPanel").at(0));
    for (const QQuickItem* side : all("SidePanel")) {
        EXPECT_FALSE(strip.adjusted(-4, 0, 4, 0).intersects(inScene(*side)));
    }
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, HudPlaceTest, testing::ValuesIn(allLanguages),
                         [](const auto& test) { return std::string(rawValue(test.param)); });

} // namespace vorbel
