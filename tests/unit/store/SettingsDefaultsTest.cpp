// Settings on disk: kept between runs and between games that run at once.
#include "tests/unit/store/SettingsFolder.h"

#include <cstdlib>

namespace vorbel {

namespace {

using SettingsDefaultsTest = SettingsFolder;

TEST_F(SettingsDefaultsTest, TheFiveKeysAreKeptBetweenRuns) {
    {
        SettingsDefaults defaults(folder);
        defaults.setText("boccia_language", "ja");
        defaults.setInteger("boccia_gamesPlayed", 59);
        defaults.setBoolean("boccia_isRealAthlete", true);
        defaults.setInteger("boccia_athleteXP", 12);
        defaults.setBytes("boccia_diaryData", "[]");
    }
    const SettingsDefaults defaults(folder);
    EXPECT_EQ(defaults.text("boccia_language"), "ja");
    EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), 59);
    EXPECT_EQ(defaults.boolean("boccia_isRealAthlete"), true);
    EXPECT_EQ(defaults.integer("boccia_athleteXP"), 12);
    EXPECT_EQ(defaults.bytes("boccia_diaryData"), "[]");
}

TEST_F(SettingsDefaultsTest, AValueIsOnTheDiskAsSoonAsItIsSet) {
    SettingsDefaults defaults(folder);
    defaults.setInteger("boccia_gamesPlayed", 3);
    EXPECT_EQ(SettingsDefaults(folder).integer("boccia_gamesPlayed"), 3);
}

TEST_F(SettingsDefaultsTest, TwoRunningGamesKeepEachOthersKeysAndSeeThemAtOnce) {
    SettingsDefaults one(folder);
    SettingsDefaults other(folder);
    for (int games = 1; games <= 100; ++games) {
        one.setInteger("boccia_gamesPlayed", games);
        other.setInteger("boccia_athleteXP", 2 * games);
        EXPECT_EQ(other.integer("boccia_gamesPlayed"), games);
        EXPECT_EQ(one.integer("boccia_athleteXP"), 2 * games);
    }
}

TEST_F(SettingsDefaultsTest, OneSetsAKeyThatTheOtherHasSetBefore) {
    SettingsDefaults one(folder);
    SettingsDefaults other(folder);
    one.setText("boccia_language", "fr");
    other.setText("boccia_language", "pl");
    EXPECT_EQ(one.text("boccia_language"), "pl");
}

TEST_F(SettingsDefaultsTest, ADiaryOfAHundredThousandEntriesIsKept) {
    std::string diary;
    diary.resize(20'000'000);
    for (std::size_t i = 0; i < diary.size(); ++i) {
        diary[i] = static_cast<char>(i * i / 251);
    }
    SettingsDefaults defaults(folder);
    defaults.setBytes("boccia_diaryData", diary);
    EXPECT_EQ(SettingsDefaults(folder).bytes("boccia_diaryData"), diary);
}

TEST_F(SettingsDefaultsTest, TheFolderIsInTheUsersOwnSettings) {
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    EXPECT_EQ(SettingsDefaults::userFolder(), folder / "vorbel");
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(SettingsDefaults::userFolder(),
              std::filesystem::path(std::getenv("HOME")) / ".config" / "vorbel");
}

} // namespace

} // namespace vorbel
