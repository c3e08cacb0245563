// Every screen of the menu in every language.
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/LayoutCheck.h"
#include "tests/scenario/menus/MenuWindow.h"
#include "tests/scenario/menus/Pictures.h"

#include "career/Diary.h"
#include "platform/random/Uuid.h"

#include <gtest/gtest.h>

namespace vorbel {

namespace {

struct Shown {
    MenuScreen screen;
    const char* name;
};
constexpr Shown screens[] = {
    {MenuScreen::main, "main"},          {MenuScreen::country, "country"}, {MenuScreen::bcClass, "class"},
    {MenuScreen::rules, "rules"},        {MenuScreen::about, "about"},     {MenuScreen::diary, "diary"},
    {MenuScreen::matchResult, "result"}, {MenuScreen::options, "options"}, {MenuScreen::leave, "leave"},
    {MenuScreen::controls, "controls"},
};

std::string diaryOf(int entries) {
    SeededRandom random(1);
    std::vector<DiaryEntry> diary;
    constexpr std::string_view keys[] = {"diary.win", "diary.loss", "diary.draw"};
    for (int i = 0; i < entries; ++i) {
        const bool won = i % 3 == 0;
        diary.push_back({randomUuid(random),
                         std::chrono::system_clock::time_point(std::chrono::hours(480'000 - i)),
                         std::string(keys[i % 3]), won ? 1 : 0});
    }
    return encodeDiary(diary);
}

// As much on every screen as there can be.
void fill(MenuWindow& game) {
    game.defaults().setInteger("boccia_gamesPlayed", 45);
    game.defaults().setInteger("boccia_athleteXP", 123);
    game.defaults().setBytes("boccia_diaryData", diaryOf(40));
    game.view().career().setRealAthlete(true);
    game.view().menu()->career()->readDiary();
    MatchState& match = MatchSetup(game.view().gameLogic()).state();
    match.tournamentActive = true;
    match.tournamentRound = 2;
    match.endHistory = std::vector<EndResult>{{1, 2, 0}, {2, 0, 1}, {3, 0, 3}, {4, 2, 0}, {5, 1, 0}};
    match.redScore = 5;
    match.blueScore = 4;
}

} // namespace

class ScreensTest : public testing::TestWithParam<AppLanguage> {
protected:
    MenuWindow game;

    ScreensTest() {
        fill(game);
        game.setLanguage(GetParam());
    }
    void check(const char* screen) {
        keep(game.picture(), GetParam(), screen);
        EXPECT_FALSE(game.controls().empty()) << screen;
        EXPECT_EQ(game.complaints().join(QLatin1Char('\n')).toStdString(), "");
        EXPECT_EQ(unreadableTexts(game.menu()).join(QLatin1Char('\n')).toStdString(), "") << screen;
    }
};

TEST_P(ScreensTest, NoTextIsCutOffOverlapsOrOverflows) {
    for (const auto& [screen, name] : screens) {
        game.open(screen);
        check(name);
    }
}

TEST_P(ScreensTest, NeitherDoTheOtherContentsOfTheSameScreens) {
    for (const BocciaClass sportClass : allBocciaClasses) {
        game.view().settings()->setSelectedClass(sportClass);
        game.open(MenuScreen::bcClass);
        check(std::string(rawValue(sportClass)).c_str());
    }
    game.open(MenuScreen::country);
    game.press(Qt::Key_Backtab); // the last country
    check("country-end");
    game.defaults().setBytes("boccia_diaryData", "");
    game.view().menu()->openDiary();
    check("diary-empty");
    game.view().career().setRealAthlete(false);
    for (const int played : {0, 3, 6, 10, 15, 20, 30, 45, 60}) {
        game.defaults().setInteger("boccia_gamesPlayed", played);
        game.open(MenuScreen::hidden);
        game.open(MenuScreen::main);
        check(("main-" + std::to_string(played)).c_str());
    }
}

TEST_P(ScreensTest, NothingOfThatHappensToTextsOfTwiceTheSize) {
    game.view().options()->set(Option::textSize, 200);
    for (const auto& [screen, name] : screens) {
        game.open(screen);
        check((std::string("large-") + name).c_str());
    }
}

INSTANTIATE_TEST_SUITE_P(EveryLanguage, ScreensTest, testing::ValuesIn(allLanguages),
                         [](const auto& test) { return std::string(rawValue(test.param)); });

} // namespace vorbel
