// Settings when things go wrong: nothing that was stored is lost, and the game goes on.
#include "tests/FullDisk.h"
#include "tests/unit/store/SettingsFolder.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <new>
#include <set>
#include <thread>

#include <sys/mman.h>
#include <sys/wait.h>

namespace vorbel {

namespace {

namespace fs = std::filesystem;

using SettingsFailureTest = SettingsFolder;

TEST_F(SettingsFailureTest, ADamagedFileCostsNoOtherValueAndIsSetAside) {
    SettingsDefaults defaults(folder);
    defaults.setInteger("boccia_gamesPlayed", 5);
    for (const char* damaged :
         {"", "\n", "garbage", "integer\n", "integer\n5x", "integer\n99999999999", "boolean\nyes"}) {
        write(folder / "boccia_athleteXP", damaged);
        EXPECT_EQ(defaults.integer("boccia_athleteXP"), std::nullopt) << damaged;
        EXPECT_EQ(defaults.boolean("boccia_athleteXP"), std::nullopt) << damaged;
        EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), 5) << damaged;
        defaults.setInteger("boccia_athleteXP", 1);
        EXPECT_EQ(defaults.integer("boccia_athleteXP"), 1) << damaged;
        EXPECT_EQ(contentOf(folder / "boccia_athleteXP.damaged"), damaged);
        fs::remove(folder / "boccia_athleteXP.damaged");
    }
}

TEST_F(SettingsFailureTest, WithAFolderThatCannotBeWrittenTheGameGoesOnInMemory) {
    write(folder, "a file where the folder should be"); // permissions would not stop an administrator
    SettingsDefaults defaults(folder / "vorbel");
    defaults.setInteger("boccia_gamesPlayed", 1);
    defaults.setText("boccia_language", "de");
    EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), 1);
    EXPECT_EQ(defaults.text("boccia_language"), "de");
    EXPECT_EQ(contentOf(folder), "a file where the folder should be");
}

TEST_F(SettingsFailureTest, WhatCouldNotBeWrittenIsWrittenWithTheNextValue) {
    write(folder, "in the way");
    SettingsDefaults defaults(folder / "vorbel");
    defaults.setInteger("boccia_gamesPlayed", 1);
    fs::remove(folder);
    defaults.setInteger("boccia_athleteXP", 1);
    EXPECT_EQ(SettingsDefaults(folder / "vorbel").integer("boccia_gamesPlayed"), 1);
}

TEST_F(SettingsFailureTest, WhatCouldNotBeWrittenIsWrittenAtTheEnd) {
    write(folder, "in the way");
    {
        SettingsDefaults defaults(folder / "vorbel");
        defaults.setInteger("boccia_gamesPlayed", 1);
        fs::remove(folder);
    }
    EXPECT_EQ(SettingsDefaults(folder / "vorbel").integer("boccia_gamesPlayed"), 1);
}

TEST_F(SettingsFailureTest, OnAFullDiskTheOldValueStaysAndTheNewOneIsKeptForTheSession) {
    const std::string shortDiary(1000, 'a');
    const std::string longDiary(100'000, 'b');
    SettingsDefaults defaults(folder);
    defaults.setBytes("boccia_diaryData", shortDiary);
    {
        const FullDisk full(4096);
        defaults.setBytes("boccia_diaryData", longDiary);
        EXPECT_EQ(defaults.bytes("boccia_diaryData"), longDiary);
        EXPECT_EQ(SettingsDefaults(folder).bytes("boccia_diaryData"), shortDiary);
    }
    defaults.setInteger("boccia_gamesPlayed", 1);
    EXPECT_EQ(SettingsDefaults(folder).bytes("boccia_diaryData"), longDiary) << "there is space again";
}

TEST_F(SettingsFailureTest, OnACompletelyFullDiskEvenASmallOldValueStays) {
    SettingsDefaults defaults(folder);
    defaults.setInteger("boccia_gamesPlayed", 59);
    const FullDisk full(0);
    defaults.setInteger("boccia_gamesPlayed", 60);
    EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), 60);
    EXPECT_EQ(SettingsDefaults(folder).integer("boccia_gamesPlayed"), 59);
}

TEST_F(SettingsFailureTest, ALockWhoseMakerWasKilledBeforeHeSignedItIsClearedAway) {
    fs::create_directories(folder);
    write(folder / ".lock", "");
    fs::last_write_time(folder / ".lock", fs::file_time_type::clock::now() - std::chrono::seconds(5));
    SettingsDefaults(folder).setInteger("counter", 1);
    EXPECT_FALSE(fs::exists(folder / ".lock"));
}

// Memory that a child process shares with its parent.
class SharedCounter {
public:
    SharedCounter()
        : memory_(mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS,
                       -1, 0)),
          value(*new (memory_) std::atomic<int>(0)) {}
    SharedCounter(const SharedCounter&) = delete;
    SharedCounter& operator=(const SharedCounter&) = delete;
    ~SharedCounter() { munmap(memory_, sizeof(std::atomic<int>)); }

private:
    void* memory_;

public:
    std::atomic<int>& value;
};

// Stores without end, each text of one letter, and tells which count it has seen stored.
[[noreturn]] void storeUntilKilled(const fs::path& folder, std::atomic<int>& stored) {
    SettingsDefaults defaults(folder);
    for (int i = stored + 1;; ++i) {
        const auto letter = static_cast<char>('a' + i % 26);
        defaults.setText("text", std::string(static_cast<std::size_t>(i * 997 % 50'000), letter));
        defaults.setInteger("counter", i);
        stored = i;
    }
}

TEST_F(SettingsFailureTest, AGameKilledAtAnyMomentLeavesWholeValuesAndLosesNone) {
    SettingsDefaults defaults(folder);
    defaults.setInteger("counter", 0);
    defaults.setText("text", "");
    defaults.setText("boccia_language", "el");
    const SharedCounter stored;
    for (int kill = 0; kill < 100; ++kill) {
        const int before = stored.value;
        const pid_t child = fork();
        if (child == 0) {
            storeUntilKilled(folder, stored.value);
        }
        while (stored.value - before < kill % 5) {
            std::this_thread::yield();
        }
        for (int turn = 0; turn < 61 * kill % 1'500; ++turn) { // anywhere in what it stores next
            std::this_thread::yield();
        }
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        const auto counter = defaults.integer("counter");
        const auto text = defaults.text("text");
        ASSERT_TRUE(counter.has_value());
        ASSERT_GE(*counter, stored.value) << "a stored value was lost";
        ASSERT_TRUE(text.has_value());
        ASSERT_TRUE(text->find_first_not_of(text->substr(0, 1)) == std::string::npos) << "half a text";
        ASSERT_EQ(defaults.text("boccia_language"), "el");
    }
    RecordProperty("stored", std::to_string(stored.value));
    SettingsDefaults(folder).setInteger("counter", 0);
    std::set<std::string> files;
    for (const auto& file : fs::directory_iterator(folder)) {
        files.insert(file.path().filename());
    }
    EXPECT_EQ(files, (std::set<std::string>{"boccia_language", "counter", "text"}))
        << "what the killed left is gone";
}

} // namespace

} // namespace vorbel
