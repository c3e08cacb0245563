// Values that several running games change at once.
#include "tests/unit/store/SettingsFolder.h"

#include <csignal>

#include <sys/wait.h>

namespace vorbel {

namespace {

using SettingsChangeTest = SettingsFolder;

constexpr int games = 2;
constexpr int matches = 100;

void addOne(SettingsDefaults& defaults) {
    defaults.atomically([&defaults] {
        defaults.setInteger("boccia_gamesPlayed", defaults.integer("boccia_gamesPlayed").value_or(0) + 1);
    });
}

[[noreturn]] void play(const std::filesystem::path& folder) {
    SettingsDefaults defaults(folder);
    for (int match = 0; match < matches; ++match) {
        addOne(defaults);
    }
    _exit(0);
}

} // namespace

TEST_F(SettingsChangeTest, GamesThatRunAtOnceAddUp) {
    std::vector<pid_t> children;
    for (int game = 0; game < games; ++game) {
        children.push_back(fork());
        if (children.back() == 0) {
            play(folder);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(SettingsDefaults(folder).integer("boccia_gamesPlayed"), games * matches);
}

TEST_F(SettingsChangeTest, ChangesMayBeNested) {
    SettingsDefaults defaults(folder);
    defaults.atomically([&defaults] {
        addOne(defaults);
        addOne(defaults);
    });
    EXPECT_EQ(SettingsDefaults(folder).integer("boccia_gamesPlayed"), 2);
}

TEST_F(SettingsChangeTest, AfterAChangeOthersMayWrite) {
    SettingsDefaults one(folder);
    SettingsDefaults other(folder);
    addOne(one);
    addOne(other);
    EXPECT_FALSE(std::filesystem::exists(folder / ".lock"));
    EXPECT_EQ(one.integer("boccia_gamesPlayed"), 2);
}

TEST_F(SettingsChangeTest, TheLockOfAKilledGameIsTakenOver) {
    const pid_t child = fork();
    if (child == 0) {
        SettingsDefaults(folder).atomically([] { ::raise(SIGKILL); });
        _exit(0);
    }
    waitpid(child, nullptr, 0);
    ASSERT_TRUE(std::filesystem::exists(folder / ".lock"));
    SettingsDefaults defaults(folder);
    addOne(defaults);
    EXPECT_FALSE(std::filesystem::exists(folder / ".lock")) << "it was taken, and given back";
    EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), 1);
}

} // namespace vorbel
