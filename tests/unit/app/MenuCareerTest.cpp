// The career lines of the main menu and the diary's screen.
#include "app/text/Texts.h"
#include "tests/unit/app/ViewFixture.h"

#include <QDateTime>
#include <QLocale>

namespace vorbel {

class MenuCareerTest : public ViewTest {
protected:
    MenuCareer& lines = *view.menu()->career();
    MenuDiary& diary = *lines.diary();

    MenuCareerTest() { settings.setSelectedLanguage(AppLanguage::en); }

    void played(int matches) { defaults.setInteger("boccia_gamesPlayed", matches); }
    void finishAnotherMatch(int red, int blue) {
        view.menu()->goOn();
        finishMatch(red, blue);
    }
    [[nodiscard]] QString shown(int row, MenuDiary::Role role) const {
        return diary.data(diary.index(row), role).toString();
    }
};

TEST_F(MenuCareerTest, TheFirstRankIsNovice) {
    EXPECT_EQ(lines.rank(), QStringLiteral("Rank: Novice"));
    EXPECT_EQ(lines.games(), QStringLiteral("Matches played: 0 · to next rank: 3"));
}

TEST_F(MenuCareerTest, WithTwoMatchesOneMoreIsNeededForTheNextRank) {
    played(2);
    EXPECT_EQ(lines.rank(), QStringLiteral("Rank: Novice"));
    EXPECT_EQ(lines.games(), QStringLiteral("Matches played: 2 · to next rank: 1"));
}

TEST_F(MenuCareerTest, WithThreeMatchesTheNextRankIsThreeMoreAway) {
    played(3);
    EXPECT_EQ(lines.rank(), QStringLiteral("Rank: 3rd Junior Class"));
    EXPECT_EQ(lines.games(), QStringLiteral("Matches played: 3 · to next rank: 3"));
}

TEST_F(MenuCareerTest, WithFiftyNineMatchesOneMoreIsNeededForTheTopRank) {
    played(59);
    EXPECT_EQ(lines.rank(), QStringLiteral("Rank: Candidate Master of Sport"));
    EXPECT_EQ(lines.games(), QStringLiteral("Matches played: 59 · to next rank: 1"));
}

TEST_F(MenuCareerTest, FromSixtyMatchesOnTheTopRankIsReached) {
    for (const int matches : {60, 61, 1000}) {
        played(matches);
        EXPECT_EQ(lines.rank(), QStringLiteral("Rank: Master of Sport"));
        EXPECT_EQ(lines.games(), QStringLiteral("Matches played: %1 · max rank reached").arg(matches));
    }
}

TEST_F(MenuCareerTest, TheRankDependsOnMatchesAlone) {
    played(3);
    defaults.setInteger("boccia_athleteXP", 500);
    career.setRealAthlete(true);
    EXPECT_EQ(lines.rank(), QStringLiteral("Rank: 3rd Junior Class"));
}

TEST_F(MenuCareerTest, TheAthleteSwitchIsKeptForTheNextLaunch) {
    EXPECT_FALSE(lines.isRealAthlete());
    lines.setRealAthlete(true);
    EXPECT_EQ(defaults.boolean("boccia_isRealAthlete"), true);
    ContentView next(platform.services(), defaults);
    EXPECT_TRUE(next.menu()->career()->isRealAthlete());
    next.menu()->career()->setRealAthlete(false);
    EXPECT_EQ(defaults.boolean("boccia_isRealAthlete"), false);
}

TEST_F(MenuCareerTest, TheCareerLinesFollowEachMatchAndSwitch) {
    int changes = 0;
    QObject::connect(&lines, &MenuCareer::changed, &view, [&changes] { ++changes; });
    lines.setRealAthlete(true);
    EXPECT_EQ(changes, 1);
    finishMatch(5, 2);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(lines.games(), QStringLiteral("Matches played: 1 · to next rank: 2"));
    EXPECT_EQ(lines.totalXP(), QStringLiteral("Experience (XP): 1"));
}

TEST_F(MenuCareerTest, TheDiaryShowsTheNewestMatchFirst) {
    lines.setRealAthlete(true);
    finishMatch(5, 2);
    finishAnotherMatch(1, 2);
    view.menu()->openDiary();
    ASSERT_EQ(diary.rowCount(), 2);
    EXPECT_FALSE(diary.isEmpty());
    EXPECT_EQ(shown(0, MenuDiary::resultRole), QStringLiteral("Loss (+0 XP)"));
    EXPECT_EQ(shown(1, MenuDiary::resultRole), QStringLiteral("Win (+1 XP)"));
}

TEST_F(MenuCareerTest, ADateIsShownInTheSystemsShortForm) {
    defaults.setBytes(
        "boccia_diaryData",
        R"([{"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":"diary.draw","xpGained":0}])");
    view.menu()->openDiary();
    const QDateTime start = QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).toLocalTime();
    const QLocale system = QLocale::system();
    const QLocale locale = system.language() == QLocale::C ? QLocale(QLocale::English) : system;
    EXPECT_EQ(shown(0, MenuDiary::dateRole), locale.toString(start, QLocale::ShortFormat));
    EXPECT_EQ(shown(0, MenuDiary::resultRole), QStringLiteral("Draw (+0 XP)"));
}

TEST_F(MenuCareerTest, ADiaryThatIsPartlyDamagedIsShownAsEmptyToo) {
    defaults.setBytes(
        "boccia_diaryData",
        R"([{"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":0,"resultKey":"diary.win","xpGained":1},{"id":)");
    view.menu()->openDiary();
    EXPECT_TRUE(diary.isEmpty());
}

TEST_F(MenuCareerTest, AResultIsStoredAsAKeyAndShownInThePlayersLanguage) {
    lines.setRealAthlete(true);
    finishMatch(5, 2);
    view.menu()->openDiary();
    int changes = 0;
    QObject::connect(&diary, &MenuDiary::dataChanged, &view, [&changes] { ++changes; });
    settings.setSelectedLanguage(AppLanguage::de);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(shown(0, MenuDiary::resultRole),
              text("diary.entry.format", AppLanguage::de, {L10n::t("diary.win", AppLanguage::de), "1"}));
}

TEST_F(MenuCareerTest, ACorruptedDiaryIsShownAsEmptyAndHoldsOnlyTheNextMatch) {
    lines.setRealAthlete(true);
    defaults.setBytes("boccia_diaryData", "[{\"id\":");
    view.menu()->openDiary();
    EXPECT_TRUE(diary.isEmpty());
    EXPECT_EQ(diary.rowCount(), 0);
    finishMatch(5, 2);
    view.menu()->openDiary();
    EXPECT_EQ(diary.rowCount(), 1);
}

TEST_F(MenuCareerTest, AnUnchangedDiaryIsNotReadAgain) {
    lines.setRealAthlete(true);
    finishMatch(5, 2);
    view.menu()->openDiary();
    int readings = 0;
    QObject::connect(&diary, &MenuDiary::readAgain, &view, [&readings] { ++readings; });
    view.menu()->back();
    view.menu()->openDiary();
    EXPECT_EQ(readings, 0);
    finishAnotherMatch(2, 1);
    view.menu()->openDiary();
    EXPECT_EQ(readings, 1);
}

TEST_F(MenuCareerTest, ARowThatDoesNotExistIsEmpty) {
    EXPECT_FALSE(diary.data(diary.index(0), MenuDiary::dateRole).isValid());
    EXPECT_FALSE(diary.data({}, MenuDiary::resultRole).isValid());
}

} // namespace vorbel
