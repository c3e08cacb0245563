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
    std::vector<DiaryEntry> entries;
    bool damaged = false; // there may have been more entries
};

// The stored form is a JSON array, newest entry first; dates count seconds since the start of 2001, UTC.
// Members of an entry that are unknown are ignored. A blob that is not wholly of that form, the empty one too,
// is damaged.
[[nodiscard]] std::string encodeDiary(const std::vector<DiaryEntry>& entries);

// The entries that can be read, also from a damaged diary: those before its cut end, those beside a bad one.
[[nodiscard]] ReadDiary readDiary(std::string_view json);

// The entries of a diary that is not damaged. A damaged one counts as empty.
[[nodiscard]] std::vector<DiaryEntry> decodeDiary(std::string_view json);

} // namespace vorbel
