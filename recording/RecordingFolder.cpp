#include "recording/RecordingFolder.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

namespace vorbel::recording {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view form = "match-00000000-000000-00.jsonl"; // 0: any digit
constexpr int mostInASecond = 99;

bool isMatch(const fs::path& file) {
    return std::ranges::equal(file.filename().string(), form, [](char c, char place) {
        return place == '0' ? c >= '0' && c <= '9' : c == place;
    });
}

std::string nameFor(std::chrono::system_clock::time_point now, int number) {
    using namespace std::chrono;
    const auto day = floor<days>(now);
    const year_month_day date(day);
    const hh_mm_ss time(floor<seconds>(now - day));
    std::array<char, 2 * form.size()> name{};
    std::snprintf(name.data(), name.size(), "match-%04d%02u%02u-%02d%02d%02d-%02d.jsonl", int{date.year()},
                  unsigned{date.month()}, unsigned{date.day()}, static_cast<int>(time.hours().count()),
                  static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()), number);
    return name.data();
}

// False when there is one already, or none can be made.
bool isMade(const fs::path& file) {
    std::FILE* const made = std::fopen(file.c_str(), "wx"); // x: never one of another running game
    return made != nullptr && std::fclose(made) == 0;
}

} // namespace

std::unique_ptr<std::ostream> RecordingFolder::newFile(std::chrono::system_clock::time_point now) const {
    std::error_code ignored; // then no file can be made either
    fs::create_directories(folder_, ignored);
    for (int number = 1; number <= mostInASecond; ++number) {
        if (const fs::path file = folder_ / nameFor(now, number); isMade(file)) {
            removeOldest();
            return std::make_unique<std::ofstream>(file, std::ios::app);
        }
    }
    return nullptr;
}

void RecordingFolder::removeOldest() const {
    std::vector<fs::path> matches;
    std::error_code error; // what cannot be listed or removed stays
    for (fs::directory_iterator file(folder_, error), end; !error && file != end; file.increment(error)) {
        if (isMatch(*file)) {
            matches.push_back(*file);
        }
    }
    std::ranges::sort(matches);
    for (std::size_t i = 0; i + kept < matches.size(); ++i) {
        fs::remove(matches[i], error);
    }
}

} // namespace vorbel::recording
