#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

using SettingsTest = ViewTest;

TEST_F(SettingsTest, EachLaunchStartsWithTheSameChoices) {
    EXPECT_FALSE(view.redAIOn());
    EXPECT_FALSE(view.blueAIOn());
    EXPECT_EQ(view.difficulty(), AIDifficulty::medium);
    EXPECT_EQ(view.selectedCountry(), Country::france);
    EXPECT_EQ(view.selectedClass(), BocciaClass::bc4);
}

TEST_F(SettingsTest, WithNothingStoredTheLanguageIsRussian) {
    EXPECT_EQ(view.selectedLanguage(), AppLanguage::ru);
}

TEST_F(SettingsTest, AnUnknownStoredLanguageReadsAsRussian) {
    defaults.setText("boccia_language", "xx");
    const ContentView other(platform.services(), defaults);
    EXPECT_EQ(other.selectedLanguage(), AppLanguage::ru);
}

TEST_F(SettingsTest, TheLanguageIsKeptForTheNextLaunch) {
    view.setSelectedLanguage(AppLanguage::de);
    EXPECT_EQ(defaults.text("boccia_language"), "de");
    const ContentView next(platform.services(), defaults);
    EXPECT_EQ(next.selectedLanguage(), AppLanguage::de);
}

TEST_F(SettingsTest, TheStoredLanguageReachesTheMatchWhenTheViewAppears) {
    defaults.setText("boccia_language", "fr");
    ContentView next(platform.services(), defaults);
    EXPECT_EQ(next.gameLogic().language, AppLanguage::ru);
    next.appear();
    EXPECT_EQ(next.gameLogic().language, AppLanguage::fr);
}

TEST_F(SettingsTest, ASettingReachesTheMatchOnlyFromTheMainQueue) {
    view.setDifficulty(AIDifficulty::ultra);
    view.setBlueAIOn(true);
    view.setSelectedLanguage(AppLanguage::en);
    EXPECT_EQ(match.aiDifficulty, AIDifficulty::medium);
    EXPECT_FALSE(match.blueIsAI);
    EXPECT_EQ(match.language, AppLanguage::ru);
    letQueueRun();
    EXPECT_EQ(match.aiDifficulty, AIDifficulty::ultra);
    EXPECT_TRUE(match.blueIsAI);
    EXPECT_EQ(match.language, AppLanguage::en);
}

TEST_F(SettingsTest, SwitchingRedToTheComputerOnRedsTurnThrowsWithoutAnyKey) {
    view.appear();
    view.setRedAIOn(true);
    platform.queue.advance(0.9);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    platform.queue.advance(1.0);
    EXPECT_EQ(match.aimState, AimState::thrown);
}

TEST_F(SettingsTest, TheComputerGetsANewCountryWhenItTakesBlue) {
    for (int i = 0; i < 20; ++i) {
        view.setBlueAIOn(true);
        letQueueRun();
        EXPECT_NE(match.blueCountry.get(), match.playerCountry.get());
        view.setBlueAIOn(false);
        letQueueRun();
    }
}

TEST_F(SettingsTest, TheMatchNeverWritesBackIntoTheSettings) {
    match.blueIsAI = true;
    match.aiDifficulty = AIDifficulty::hard;
    match.language = AppLanguage::en;
    letQueueRun();
    EXPECT_FALSE(view.blueAIOn());
    EXPECT_EQ(view.difficulty(), AIDifficulty::medium);
    EXPECT_EQ(view.selectedLanguage(), AppLanguage::ru);
}

TEST_F(SettingsTest, ALevelOutsideTheListIsIgnored) {
    view.setDifficultyIndex(4);
    view.setDifficultyIndex(-1);
    EXPECT_EQ(view.difficulty(), AIDifficulty::medium);
    view.setDifficultyIndex(0);
    EXPECT_EQ(view.difficulty(), AIDifficulty::easy);
}

} // namespace vorbel
