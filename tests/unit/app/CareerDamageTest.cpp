// The career on a disk that others write too: counts at their limits, games that run at once, damage.
#include "app/career/Career.h"
#include "career/Diary.h"
#include "platform/random/RandomSource.h"
#include "tests/unit/store/SettingsFolder.h"

#include <limits>

#include <sys/wait.h>

namespace vorbel {

namespace {

class CareerDamageTest : public SettingsFolder {
protected:
    [[nodiscard]] std::vector<DiaryEntry> diary() const { return decodeDiary(career.diaryData()); }

    SettingsDefaults defaults{folder};
    SystemRandom random;
    Career career{defaults, random};
};

constexpr int largest = std::numeric_limits<int>::max();

} // namespace

TEST_F(CareerDamageTest, CountsStopAtTheLargestNumber) {
    career.setRealAthlete(true);
    defaults.setInteger("boccia_gamesPlayed", largest - 1);
    defaults.setInteger("boccia_athleteXP", largest - 1);
    for (int match = 0; match < 2; ++match) {
        career.addMatch(5, 2);
        EXPECT_EQ(career.gamesPlayed(), largest);
        EXPECT_EQ(career.athleteXP(), largest);
    }
}

TEST_F(CareerDamageTest, MatchesOfGamesThatRunAtOnceAddUpInCountsAndDiary) {
    career.setRealAthlete(true);
    constexpr int games = 2;
    constexpr int matches = 50;
    for (int game = 0; game < games; ++game) {
        if (fork() == 0) {
            SettingsDefaults own(folder);
            Career other(own, random);
            for (int match = 0; match < matches; ++match) {
                other.addMatch(1, 0);
            }
            _exit(0);
        }
    }
    while (wait(nullptr) > 0) {
    }
    EXPECT_EQ(career.gamesPlayed(), games * matches);
    EXPECT_EQ(career.athleteXP(), games * matches);
    EXPECT_EQ(diary().size(), static_cast<std::size_t>(games * matches));
}

TEST_F(CareerDamageTest, ADamagedDiaryIsSetAsideBeforeItIsReplaced) {
    career.setRealAthlete(true);
    for (const char* file : {"boccia_diaryData.damaged", "boccia_diaryData.damaged-2"}) {
        const std::string damaged = std::string(R"([{"id":")") + file;
        defaults.setBytes("boccia_diaryData", damaged);
        career.addMatch(5, 2);
        EXPECT_EQ(diary().size(), 1U);
        EXPECT_EQ(contentOf(folder / file), "bytes\n" + damaged);
    }
}

TEST_F(CareerDamageTest, ADiaryThatIsEmptyOrWholeIsNotSetAside) {
    career.setRealAthlete(true);
    defaults.setBytes("boccia_diaryData", "");
    career.addMatch(5, 2);
    career.addMatch(5, 2);
    EXPECT_EQ(diary().size(), 2U);
    EXPECT_FALSE(std::filesystem::exists(folder / "boccia_diaryData.damaged"));
}

} // namespace vorbel
