#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

using PlayerSettingsTest = ViewTest;

TEST_F(PlayerSettingsTest, EachLaunchStartsWithTheSameChoices) {
    EXPECT_FALSE(settings.redAIOn());
    EXPECT_FALSE(settings.blueAIOn());
    EXPECT_EQ(settings.difficulty(), AIDifficulty::medium);
    EXPECT_EQ(settings.selectedCountry(), Country::france);
    EXPECT_EQ(settings.selectedClass(), BocciaClass::bc4);
}

TEST_F(PlayerSettingsTest, WithNothingStoredTheLanguageIsRussian) {
    EXPECT_EQ(settings.selectedLanguage(), AppLanguage::ru);
}

TEST_F(PlayerSettingsTest, AnUnknownStoredLanguageReadsAsRussian) {
    defaults.setText("boccia_language", "xx");
    ContentView other(platform.services(), defaults);
    EXPECT_EQ(other.settings()->selectedLanguage(), AppLanguage::ru);
}

TEST_F(PlayerSettingsTest, TheLanguageIsKeptForTheNextLaunch) {
    settings.setSelectedLanguage(AppLanguage::de);
    EXPECT_EQ(defaults.text("boccia_language"), "de");
    ContentView next(platform.services(), defaults);
    EXPECT_EQ(next.settings()->selectedLanguage(), AppLanguage::de);
}

TEST_F(PlayerSettingsTest, TheStoredLanguageReachesTheMatchWhenTheViewAppears) {
    defaults.setText("boccia_language", "fr");
    ContentView next(platform.services(), defaults);
    EXPECT_EQ(next.gameLogic().language, AppLanguage::ru);
    next.appear();
    EXPECT_EQ(next.gameLogic().language, AppLanguage::fr);
}

TEST_F(PlayerSettingsTest, ASettingReachesTheMatchOnlyFromTheMainQueue) {
    settings.setDifficulty(AIDifficulty::ultra);
    settings.setBlueAIOn(true);
    settings.setSelectedLanguage(AppLanguage::en);
    EXPECT_EQ(match.aiDifficulty, AIDifficulty::medium);
    EXPECT_FALSE(match.blueIsAI);
    EXPECT_EQ(match.language, AppLanguage::ru);
    letQueueRun();
    EXPECT_EQ(match.aiDifficulty, AIDifficulty::ultra);
    EXPECT_TRUE(match.blueIsAI);
    EXPECT_EQ(match.language, AppLanguage::en);
}

TEST_F(PlayerSettingsTest, SwitchingRedToTheComputerOnRedsTurnThrowsWithoutAnyKey) {
    view.appear();
    settings.setRedAIOn(true);
    platform.queue.advance(0.9);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    platform.queue.advance(1.0);
    EXPECT_EQ(match.aimState, AimState::thrown);
}

TEST_F(PlayerSettingsTest, TheComputerGetsANewCountryWhenItTakesBlue) {
    for (int i = 0; i < 20; ++i) {
        settings.setBlueAIOn(true);
        letQueueRun();
        EXPECT_NE(match.blueCountry.get(), match.playerCountry.get());
        settings.setBlueAIOn(false);
        letQueueRun();
    }
}

TEST_F(PlayerSettingsTest, TheMatchNeverWritesBackIntoTheSettings) {
    match.blueIsAI = true;
    match.aiDifficulty = AIDifficulty::hard;
    match.language = AppLanguage::en;
    letQueueRun();
    EXPECT_FALSE(settings.blueAIOn());
    EXPECT_EQ(settings.difficulty(), AIDifficulty::medium);
    EXPECT_EQ(settings.selectedLanguage(), AppLanguage::ru);
}

TEST_F(PlayerSettingsTest, ALevelOutsideTheListIsIgnored) {
    settings.setDifficultyIndex(4);
    settings.setDifficultyIndex(-1);
    EXPECT_EQ(settings.difficulty(), AIDifficulty::medium);
    settings.setDifficultyIndex(0);
    EXPECT_EQ(settings.difficulty(), AIDifficulty::easy);
}

} // namespace vorbel
