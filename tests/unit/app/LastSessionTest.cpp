#include "app/session/LastSession.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace vorbel {

class LastSessionTest : public testing::Test {
protected:
    QTemporaryDir place;
    const std::filesystem::path folder = std::filesystem::path(place.path().toStdString()) / "state";

    // A game of its own that does not come to its end.
    void crash() const {
        const pid_t child = fork();
        if (child == 0) {
            const auto* game = new LastSession(folder);
            _exit(game == nullptr ? 1 : 0); // nothing is destroyed
        }
        int status = 0;
        waitpid(child, &status, 0);
    }
};

TEST_F(LastSessionTest, TheFirstGameEverKnowsOfNoBadEnd) {
    EXPECT_FALSE(LastSession(folder).endedBadly());
}

TEST_F(LastSessionTest, AGoodEndLeavesNothing) {
    { const LastSession game(folder); }
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_FALSE(LastSession(folder).endedBadly());
}

TEST_F(LastSessionTest, ABadEndIsToldOnce) {
    crash();
    EXPECT_TRUE(LastSession(folder).endedBadly());
    EXPECT_FALSE(LastSession(folder).endedBadly());
}

TEST_F(LastSessionTest, OfTwoGamesAtOnceNeitherTakesTheOtherForEnded) {
    const LastSession first(folder);
    EXPECT_FALSE(LastSession(folder).endedBadly());
    crash();
    EXPECT_TRUE(LastSession(folder).endedBadly());
    EXPECT_FALSE(LastSession(folder).endedBadly()) << "the first still runs";
}

TEST_F(LastSessionTest, WhereNothingCanBeWrittenEveryEndIsAGoodOne) {
    { const LastSession game("/proc/nowhere"); }
    EXPECT_FALSE(LastSession("/proc/nowhere").endedBadly());
}

} // namespace vorbel
