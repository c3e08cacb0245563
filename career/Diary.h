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

// The stored form is a JSON array, newest entry first; dates count seconds since the start of 2001, UTC.
// A blob that is not of that form reads as an empty diary; members of an entry that are unknown are ignored.
[[nodiscard]] std::vector<DiaryEntry> decodeDiary(std::string_view json);
[[nodiscard]] std::string encodeDiary(const std::vector<DiaryEntry>& entries);

} // namespace vorbel
