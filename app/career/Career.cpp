#include "app/career/Career.h"

#include "career/Diary.h"
#include "platform/random/Uuid.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>

namespace vorbel {

namespace {

constexpr std::string_view gamesPlayedKey = "boccia_gamesPlayed";
constexpr std::string_view isRealAthleteKey = "boccia_isRealAthlete";
constexpr std::string_view athleteXPKey = "boccia_athleteXP";
constexpr std::string_view diaryDataKey = "boccia_diaryData";

// Red is the player's side.
DiaryEntry entryOf(int redScore, int blueScore, RandomSource& random) {
    const bool won = redScore > blueScore;
    const std::string resultKey = won ? "diary.win" : redScore < blueScore ? "diary.loss" : "diary.draw";
    return {randomUuid(random), std::chrono::system_clock::now(), resultKey, won ? 1 : 0};
}

// The largest number there is where the sum is larger.
int saturatedSum(int count, int more) {
    const std::int64_t sum = std::int64_t{count} + more;
    return static_cast<int>(std::min<std::int64_t>(sum, std::numeric_limits<int>::max()));
}

} // namespace

Career::Career(UserDefaults& defaults, RandomSource& random) : defaults_(defaults), random_(random) {}

int Career::gamesPlayed() const {
    return defaults_.integer(gamesPlayedKey).value_or(0);
}
bool Career::isRealAthlete() const {
    return defaults_.boolean(isRealAthleteKey).value_or(false);
}
int Career::athleteXP() const {
    return defaults_.integer(athleteXPKey).value_or(0);
}
std::string Career::diaryData() const {
    return defaults_.bytes(diaryDataKey).value_or("");
}

void Career::setRealAthlete(bool is) {
    defaults_.setBoolean(isRealAthleteKey, is);
    emit changed();
}

void Career::addMatch(int redScore, int blueScore) {
    defaults_.atomically([this, redScore, blueScore] {
        defaults_.setInteger(gamesPlayedKey, saturatedSum(gamesPlayed(), 1));
        if (isRealAthlete()) {
            const DiaryEntry entry = entryOf(redScore, blueScore, random_);
            defaults_.setInteger(athleteXPKey, saturatedSum(athleteXP(), entry.xpGained));
            appendDiaryEntry(entry);
        }
    });
    emit changed();
}

// A damaged diary makes room for a new one, which begins with this entry.
void Career::appendDiaryEntry(const DiaryEntry& entry) {
    const std::string stored = diaryData();
    ReadDiary diary = readDiary(stored);
    if (diary.damaged && !stored.empty()) {
        defaults_.setAside(diaryDataKey);
    }
    diary.entries.insert(diary.entries.begin(), entry);
    defaults_.setBytes(diaryDataKey, encodeDiary(diary.entries));
}

} // namespace vorbel
