#include "recording/Recording.h"

#include "recording/PhysicsId.h"
#include "recording/RecordedLines.h"

namespace vorbel::recording {

namespace {

constexpr std::size_t longestLine = 64UL * 1024; // bytes; a result of a thousand ends has fewer

// Takes the next line, without its break, off the text. None at its end: where the last line lacks its break, whoever
// wrote it was stopped in it.
std::optional<std::string_view> takeLine(std::string_view& text) {
    const std::size_t end = text.substr(0, longestLine).find('\n');
    if (end == std::string_view::npos) {
        return text.size() < longestLine ? std::nullopt : std::optional(std::string_view()); // no recorder's
    }
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return line;
}

std::string refusal(const Heading& heading) {
    return heading.physics == physicsId ? ""
                                        : "it was played with other physics (" + heading.physics +
                                              ") than this game's (" + std::string(physicsId) + ")";
}
std::string refusal(Foreign /*line*/) {
    return "it is no recording of a match, or its first line was changed";
}
std::string refusal(Newer newer) {
    return "it comes from a newer game: it has version " + std::to_string(newer.version) +
           ", and this game reads version " + std::to_string(formatVersion);
}

bool follows(const Entry& entry, const std::vector<Entry>& before) {
    return before.empty() ||
           (entry.tick >= before.back().tick && !std::holds_alternative<Result>(before.back().what));
}

} // namespace

std::variant<Recording, std::string> readRecording(std::string_view text) {
    const auto heading = headingIn(takeLine(text).value_or(""));
    if (std::string why = std::visit([](const auto& line) { return refusal(line); }, heading); !why.empty()) {
        return why;
    }
    Recording recording{std::get<Heading>(heading), {}};
    for (int number = 2;; ++number) {
        const auto line = takeLine(text);
        if (!line) {
            return recording;
        }
        const auto entry = entryIn(*line);
        if (!entry || !follows(*entry, recording.entries)) {
            return "line " + std::to_string(number) + " is none that the game writes there";
        }
        recording.entries.push_back(*entry);
    }
}

} // namespace vorbel::recording
