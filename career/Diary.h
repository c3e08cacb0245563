// The athlete's diary: the results of the matches that a real-life athlete played.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace vorbel {

struct DiaryEntry {
    std::string id;                             // UUID, upper case
    std::chrono::system_clock::time_point date; // when the match ended
    std::string resultKey;                      // "diary.win", "diary.loss" or "diary.draw"
    int xpGained = 0;                           // experience earned by the match
    bool operator==(const DiaryEntry&) const = default;
};

struct ReadDiary {
    std::vector<DiaryEntry> entries; // none of a damaged diary
    bool damaged = false;
};

// The stored form is a JSON array, newest entry first; dates count seconds since the start of 2001, UTC.
// Members of an entry that are unknown are ignored. A blob that is not wholly of that form, the empty one too,
// is damaged.
[[nodiscard]] std::string encodeDiary(const std::vector<DiaryEntry>& entries);

[[nodiscard]] ReadDiary readDiary(std::string_view json);

// Its entries alone.
[[nodiscard]] std::vector<DiaryEntry> decodeDiary(std::string_view json);

} // namespace vorbel
