#include "tests/fuzz/FuzzTargets.h"

#include "app/command_line/CommandLine.h"
#include "career/Diary.h"
#include "platform/store/DefaultsValue.h"
#include "recording/RecordedLines.h"
#include "tools/sim/Options.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace vorbel {

namespace {

void require(bool kept) {
    if (!kept) {
        std::abort();
    }
}

// Dates are stored as doubles, whose steps are a microsecond 250 years from the clock's epoch.
bool isSameEntry(const DiaryEntry& one, const DiaryEntry& other) {
    constexpr auto tolerance = std::chrono::microseconds(10);
    return one.id == other.id && one.resultKey == other.resultKey && one.xpGained == other.xpGained &&
           std::chrono::abs(one.date - other.date) < tolerance;
}

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end).data(),
                           std::min(text.find('\0'), end)); // as a process gets it
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

void parseForGame(std::vector<std::string>& arguments) {
    std::vector<char*> pointers;
    std::ranges::transform(arguments, std::back_inserter(pointers),
                           [](std::string& text) { return text.data(); });
    const CommandLine parsed = CommandLine::parse(pointers);
    require(parsed.complaint.empty() == (parsed.action != CommandLine::Action::complain));
    require(parsed.screenshotsFolder.empty() || parsed.action != CommandLine::Action::play);
}

void parseForSimulator(const std::vector<std::string>& arguments) {
    std::vector<const char*> pointers;
    std::ranges::transform(arguments, std::back_inserter(pointers), &std::string::c_str);
    const auto parsed = sim::parseOptions(pointers);
    if (const auto* options = std::get_if<sim::Options>(&parsed)) {
        require(options->matches >= 1 && options->jobs >= 1);
        const sim::LadderSettings ladder = sim::ladderSettings(*options);
        require(ladder.matchesPerCell >= 1 && ladder.matchesPerCell <= 1 << 30);
    } else {
        require(!std::get<std::string>(parsed).empty());
    }
}

std::string textOf(const recording::Recording& recorded) {
    std::string text = lineOf(recorded.heading);
    for (const recording::Entry& entry : recorded.entries) {
        text += lineOf(entry);
    }
    return text;
}

} // namespace

void fuzzSettings(std::string_view content) {
    if (const auto value = decoded(content)) {
        require(decoded(encoded(*value)) == value);
    }
}

void fuzzDiary(std::string_view json) {
    const ReadDiary diary = readDiary(json);
    require(!diary.damaged || diary.entries.empty());
    const ReadDiary again = readDiary(encodeDiary(diary.entries));
    require(!again.damaged && std::ranges::equal(again.entries, diary.entries, isSameEntry));
}

// What is read is written as it was understood, and then reads as the same.
void fuzzRecording(std::string_view text) {
    const auto read = recording::readRecording(text);
    const auto* const recorded = std::get_if<recording::Recording>(&read);
    if (recorded == nullptr) {
        return require(!std::get<std::string>(read).empty());
    }
    const std::string written = textOf(*recorded);
    const auto again = recording::readRecording(written);
    require(textOf(std::get<recording::Recording>(again)) == written);
}

void fuzzCommandLine(std::string_view arguments) {
    std::vector<std::string> lines = linesOf(arguments);
    parseForGame(lines);
    parseForSimulator(lines);
}

} // namespace vorbel
