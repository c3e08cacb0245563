// The display over the arena in every language: no text is cut off, overlaps another or leaves the window.
#include "engine/Messages.h"
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/LayoutCheck.h"
#include "tests/scenario/menus/MenuWindow.h"
#include "tests/scenario/menus/Pictures.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vorbel {

namespace {

// Every sentence that the message line can show in the language, the longest first.
std::vector<std::string> messagesIn(AppLanguage language) {
    using namespace messages;
    std::vector<std::string> all{aimingHint(language),
                                 lockPower(language),
                                 ballInPlay(language),
                                 matchOver(language, 12, 10),
                                 tournamentRound(language, 4, longestNamed(language)),
                                 tournamentEliminated(language, 4),
                                 tournamentChampion(language)};
    for (const BallColor side : {BallColor::red, BallColor::blue}) {
        all.insert(all.end(), {aiAiming(language, side), turn(language, side), jackOut(language, side),
                               newEndStart(language, 4, side), tieBreak(language, 10, side)});
    }
    for (const EndResult& result : {EndResult{1, 0, 0}, EndResult{1, 6, 0}, EndResult{1, 3, 3}}) {
        all.push_back(nextEndPrompt(language, result));
    }
    std::ranges::sort(all, std::ranges::greater(), &std::string::size);
    return all;
}

} // namespace

class HudTest : public testing::TestWithParam<AppLanguage> {
protected:
    MenuWindow game;
    GameLogic& match = game.view().gameLogic();
    MatchState& state = MatchSetup(match).state();

    HudTest() {
        game.setLanguage(GetParam());
        game.open(MenuScreen::hidden);
    }
    void check(const std::string& what, const char* picture) {
        keep(game.picture(), GetParam(), picture);
        EXPECT_EQ(unreadableTexts(*game.window().contentItem()).join(QLatin1Char('\n')).toStdString(), "")
            << what;
    }
};

TEST_P(HudTest, TheLongestMessagesHaveTheirPlaceAboveThePowerBarToo) {
    state.aimState = AimState::aimingPower;
    const std::vector<std::string> messages = messagesIn(GetParam());
    for (std::size_t i = 0; i < 4; ++i) {
        match.message = messages[i];
        check(messages[i], ("hud-message-" + std::to_string(i)).c_str());
    }
}

TEST_P(HudTest, TheLongestNamesHaveTheirPlaceDuringATournament) {
    const Country country = longestNamed(GetParam());
    game.view().settings()->setSelectedCountry(country);
    game.view().settings()->setSelectedClass(BocciaClass::bc3);
    state.tournamentActive = true;
    match.blueCountry = country;
    for (const int round : {1, 2, 3, 4}) {
        state.tournamentRound = round;
        match.message = messages::tournamentRound(GetParam(), round, country);
        check(match.message, ("hud-round-" + std::to_string(round)).c_str());
    }
}

TEST_P(HudTest, TextsOfTwiceTheSizeHaveTheirPlaceToo) {
    game.view().options()->set(Option::textSize, 200);
    game.view().settings()->setSelectedCountry(longestNamed(GetParam()));
    game.view().settings()->setSelectedClass(BocciaClass::bc3);
    state.tournamentActive = true;
    match.blueCountry = longestNamed(GetParam());
    state.tournamentRound = 2;
    state.aimState = AimState::aimingPower;
    match.message = messagesIn(GetParam()).front();
    check(match.message, "large-hud");
}

TEST_P(HudTest, TheButtonsOnTheCourtHaveTheirPlaceAtEverySize) {
    Options& options = *game.view().options();
    options.set(Option::courtButtons, 1);
    options.set(Option::speech, 1);
    options.set(Option::powerPace, 0);
    for (const int size : {100, 150, 200}) {
        options.set(Option::textSize, size);
        check("buttons", ("hud-buttons-" + std::to_string(size)).c_str());
    }
}

TEST_P(HudTest, TheResultOfBallsAtEqualDistanceIsSeen) {
    match.message = messages::nextEndPrompt(GetParam(), {1, 1, 1});
    check(match.message, "hud-equidistant");
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, HudTest, testing::ValuesIn(allLanguages),
                         [](const auto& test) { return std::string(rawValue(test.param)); });

} // namespace vorbel
