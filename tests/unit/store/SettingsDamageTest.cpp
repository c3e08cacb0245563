// What else may stand where a setting should: it is kept, and the game neither hangs nor grows.
#include "tests/unit/store/SettingsFolder.h"

#include <sys/stat.h>

namespace vorbel {

namespace {

namespace fs = std::filesystem;

class SettingsDamageTest : public SettingsFolder {
protected:
    SettingsDamageTest() { fs::create_directories(folder); }

    const fs::path experience = folder / "boccia_athleteXP";
};

} // namespace

TEST_F(SettingsDamageTest, ASecondDamageDoesNotOverwriteWhatWasSetAsideFirst) {
    SettingsDefaults defaults(folder);
    for (const char* damaged : {"first", "second", "third"}) {
        write(experience, damaged);
        defaults.setInteger("boccia_athleteXP", 1);
    }
    EXPECT_EQ(contentOf(folder / "boccia_athleteXP.damaged"), "first");
    EXPECT_EQ(contentOf(folder / "boccia_athleteXP.damaged-2"), "second");
    EXPECT_EQ(contentOf(folder / "boccia_athleteXP.damaged-3"), "third");
    EXPECT_EQ(contentOf(experience), "integer\n1");
}

TEST_F(SettingsDamageTest, AValueOfAnotherTypeIsSetAside) {
    SettingsDefaults defaults(folder);
    defaults.setBytes("boccia_athleteXP", "[]");
    EXPECT_EQ(defaults.integer("boccia_athleteXP"), std::nullopt);
    defaults.setInteger("boccia_athleteXP", 1);
    EXPECT_EQ(contentOf(folder / "boccia_athleteXP.damaged"), "bytes\n[]");
}

TEST_F(SettingsDamageTest, AGoodValueIsNotSetAside) {
    SettingsDefaults defaults(folder);
    defaults.setInteger("boccia_athleteXP", 1);
    defaults.setInteger("boccia_athleteXP", 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(SettingsDamageTest, WhatItsReaderFindsDamagedIsKeptAndTheKeyIsAbsent) {
    SettingsDefaults defaults(folder);
    defaults.setBytes("boccia_diaryData", "[{");
    defaults.setAside("boccia_diaryData");
    EXPECT_EQ(defaults.bytes("boccia_diaryData"), std::nullopt);
    EXPECT_EQ(contentOf(folder / "boccia_diaryData.damaged"), "bytes\n[{");
    defaults.setAside("boccia_diaryData");
    EXPECT_FALSE(fs::exists(folder / "boccia_diaryData.damaged-2")) << "there was nothing";
}

TEST_F(SettingsDamageTest, TheLineBreaksOfATextEditorAreNoDamage) {
    const SettingsDefaults defaults(folder);
    for (const auto& [newline, name] : {std::pair("\n", "LF"), std::pair("\r\n", "CRLF")}) {
        const std::string end = newline;
        write(folder / "integer", "integer" + end + "59" + end);
        write(folder / "boolean", "boolean" + end + "true" + end);
        write(folder / "text", "text" + end + "de" + end);
        write(folder / "bytes", "bytes" + end + "[]");
        EXPECT_EQ(defaults.integer("integer"), 59) << name;
        EXPECT_EQ(defaults.boolean("boolean"), true) << name;
        EXPECT_EQ(defaults.text("text"), "de") << name;
        EXPECT_EQ(defaults.bytes("bytes"), "[]") << name;
    }
    write(folder / "integer", "integer\n59\n\n");
    EXPECT_EQ(defaults.integer("integer"), std::nullopt) << "one line break, not two";
}

TEST_F(SettingsDamageTest, TextsEndWithTheLineBreaksThatTheyWereStoredWith) {
    SettingsDefaults defaults(folder);
    for (const char* text : {"", "\n", "\r", "\r\n", "\n\n", "a\n\r\n", "a\r\n\n", "a\r"}) {
        defaults.setText("text", text);
        EXPECT_EQ(defaults.text("text"), text);
    }
}

TEST_F(SettingsDamageTest, APipeIsNotWaitedForAndMakesRoom) {
    ASSERT_EQ(mkfifo(experience.c_str(), 0600), 0);
    SettingsDefaults defaults(folder);
    EXPECT_EQ(defaults.integer("boccia_athleteXP"), std::nullopt);
    defaults.setInteger("boccia_athleteXP", 3);
    EXPECT_EQ(contentOf(experience), "integer\n3");
    EXPECT_TRUE(fs::is_fifo(folder / "boccia_athleteXP.damaged"));
}

TEST_F(SettingsDamageTest, APipeInTheLocksPlaceIsNotWaitedFor) {
    ASSERT_EQ(mkfifo((folder / ".lock").c_str(), 0600), 0);
    SettingsDefaults(folder).setInteger("boccia_athleteXP", 3);
    EXPECT_EQ(contentOf(experience), "integer\n3");
}

TEST_F(SettingsDamageTest, ADeviceWithoutEndIsNotRead) {
    fs::create_symlink("/dev/zero", experience);
    SettingsDefaults defaults(folder);
    EXPECT_EQ(defaults.integer("boccia_athleteXP"), std::nullopt);
    defaults.setInteger("boccia_athleteXP", 3);
    EXPECT_EQ(contentOf(experience), "integer\n3");
    EXPECT_TRUE(fs::is_symlink(folder / "boccia_athleteXP.damaged"));
}

TEST_F(SettingsDamageTest, AFolderMakesRoom) {
    write(experience / "note", "mine");
    SettingsDefaults defaults(folder);
    defaults.setInteger("boccia_athleteXP", 3);
    EXPECT_EQ(contentOf(experience), "integer\n3");
    EXPECT_EQ(contentOf(folder / "boccia_athleteXP.damaged" / "note"), "mine");
}

TEST_F(SettingsDamageTest, AFileOfMoreThanSixtyFourMebibytesIsNotReadButKept) {
    constexpr std::uintmax_t sixtyFourMebibytes = 64UL * 1024 * 1024;
    const fs::path diary = folder / "boccia_diaryData";
    write(diary, "bytes\n[]");
    SettingsDefaults defaults(folder);
    fs::resize_file(diary, sixtyFourMebibytes);
    EXPECT_TRUE(defaults.bytes("boccia_diaryData").has_value());
    fs::resize_file(diary, sixtyFourMebibytes + 1);
    EXPECT_EQ(defaults.bytes("boccia_diaryData"), std::nullopt);
    defaults.setBytes("boccia_diaryData", "[]");
    EXPECT_EQ(fs::file_size(folder / "boccia_diaryData.damaged"), sixtyFourMebibytes + 1);
}

TEST_F(SettingsDamageTest, WhatAKilledGameLeftUnfinishedIsRemovedAtTheNextStart) {
    for (const char* file : {"boccia_athleteXP.aBcXyZ", "boccia_diaryData.ZZZZZZ"}) {
        write(folder / file, "integer\n");
    }
    const std::vector<fs::path> others{"boccia_gamesPlayed",
                                       "boccia_athleteXP.damaged",
                                       "boccia_athleteXP.damaged-2",
                                       "notes.txt",
                                       "key.abc123",
                                       "key.abcdefg"};
    for (const fs::path& file : others) {
        write(folder / file, "integer\n5");
    }
    const SettingsDefaults defaults(folder);
    std::vector<fs::path> left;
    for (const auto& file : fs::directory_iterator(folder)) {
        left.push_back(file.path().filename());
    }
    EXPECT_THAT(left, testing::UnorderedElementsAreArray(others));
}

TEST_F(SettingsDamageTest, LookingAtSettingsMakesNoFolder) {
    const SettingsDefaults defaults(folder / "vorbel");
    EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), std::nullopt);
    EXPECT_FALSE(fs::exists(folder / "vorbel"));
}

} // namespace vorbel
