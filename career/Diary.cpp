#include "career/Diary.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

namespace vorbel {

namespace {

using nlohmann::ordered_json;
using Seconds = std::chrono::duration<double>;

// 2001-01-01 00:00:00 UTC, in seconds since the system clock's epoch.
constexpr Seconds referenceDate{978307200.0};

double toNumber(std::chrono::system_clock::time_point date) {
    return (std::chrono::duration_cast<Seconds>(date.time_since_epoch()) - referenceDate).count();
}

// A date that the clock cannot hold becomes the nearest one that it can, 250 years from its epoch.
std::chrono::system_clock::time_point fromNumber(double secondsSinceReference) {
    using Clock = std::chrono::system_clock;
    constexpr Seconds farthest = std::chrono::hours(24 * 365 * 250);
    static_assert(farthest < Clock::duration::max());
    const Seconds sinceEpoch =
        std::clamp(referenceDate + Seconds(secondsSinceReference), -farthest, farthest);
    return Clock::time_point(std::chrono::duration_cast<Clock::duration>(sinceEpoch));
}

// 8-4-4-4-12 hexadecimal digits.
bool isUuid(std::string_view text) {
    constexpr std::string_view form = "00000000-0000-0000-0000-000000000000";
    return std::ranges::equal(text, form, [](char c, char place) {
        return place == '-' ? c == '-' : std::isxdigit(static_cast<unsigned char>(c)) != 0;
    });
}

bool isInt(const ordered_json& number) {
    return number.is_number_integer() && std::abs(number.get<double>()) <= std::numeric_limits<int>::max();
}

bool isEntry(const ordered_json& value) {
    const auto has = [&value](const char* member, bool (ordered_json::*isOfType)() const noexcept) {
        const auto found = value.find(member);
        return found != value.end() && ((*found).*isOfType)();
    };
    return value.is_object() && has("id", &ordered_json::is_string) &&
           isUuid(value["id"].get_ref<const std::string&>()) && has("date", &ordered_json::is_number) &&
           has("resultKey", &ordered_json::is_string) && value.contains("xpGained") &&
           isInt(value["xpGained"]);
}

} // namespace

ReadDiary readDiary(std::string_view json) {
    const ordered_json document = ordered_json::parse(json, nullptr, false);
    if (!document.is_array() || !std::ranges::all_of(document, isEntry)) {
        return {.entries = {}, .damaged = true};
    }
    ReadDiary diary;
    diary.entries.reserve(document.size());
    for (const ordered_json& value : document) {
        diary.entries.push_back(
            {value["id"], fromNumber(value["date"]), value["resultKey"], value["xpGained"]});
    }
    return diary;
}

std::vector<DiaryEntry> decodeDiary(std::string_view json) {
    return readDiary(json).entries;
}

std::string encodeDiary(const std::vector<DiaryEntry>& entries) {
    ordered_json document = ordered_json::array();
    for (const DiaryEntry& entry : entries) {
        document.push_back({{"id", entry.id},
                            {"date", toNumber(entry.date)},
                            {"resultKey", entry.resultKey},
                            {"xpGained", entry.xpGained}});
    }
    return document.dump();
}

} // namespace vorbel
