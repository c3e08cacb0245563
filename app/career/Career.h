// What the player has earned in all matches so far, as it is kept in the defaults.
#pragma once

#include "platform/random/RandomSource.h"
#include "platform/store/UserDefaults.h"

#include <QObject>

#include <string>

namespace vorbel {

struct DiaryEntry;

// Read from the defaults each time: another running game may have added to them. Main thread only.
class Career final : public QObject {
    Q_OBJECT

public:
    // Both must outlive it. The random source gives each diary entry its identity.
    Career(UserDefaults& defaults, RandomSource& random);

    [[nodiscard]] int gamesPlayed() const; // to their end
    [[nodiscard]] bool isRealAthlete() const;
    [[nodiscard]] int athleteXP() const;         // experience points
    [[nodiscard]] std::string diaryData() const; // JSON

    void setRealAthlete(bool is);

    // A match has ended with these scores. It counts always; experience and diary are an athlete's. Games that
    // run at once add up; counts stop at the largest number. A diary that is damaged is set aside.
    void addMatch(int redScore, int blueScore);

signals:
    void changed();

private:
    void appendDiaryEntry(const DiaryEntry& entry);

    UserDefaults& defaults_;
    RandomSource& random_;
};

} // namespace vorbel
