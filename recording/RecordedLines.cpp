#include "recording/RecordedLines.h"

#include "recording/RecordedWords.h"

#include <nlohmann/json.hpp>

#include <charconv>

namespace vorbel::recording {

namespace {

using nlohmann::ordered_json;

template <typename... Cases>
struct Either : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Either(Cases...) -> Either<Cases...>;

// All 64 bits: a JSON number of that size is read as a rounded one by many.
std::string hexadecimal(std::uint64_t number) {
    constexpr std::size_t digits = 16;
    constexpr int base = 16;
    std::array<char, digits> text{};
    const auto end = std::to_chars(text.data(), text.data() + digits, number, base);
    const std::string shortest(text.data(), static_cast<std::size_t>(end.ptr - text.data()));
    return std::string(digits - shortest.size(), '0') + shortest;
}

std::string lineOf(const ordered_json& object) {
    return object.dump() + '\n';
}

ordered_json objectOf(Points points) {
    return {{"red", points.red}, {"blue", points.blue}};
}

void write(ordered_json& object, const MatchAction& action) {
    object["do"] = wordFor(action.kind);
    if (action.by != 0) {
        object["by"] = action.by;
    }
}

void write(ordered_json& object, const Choice& choice) {
    const auto set = [&object](std::string_view what, std::string_view to) {
        object["set"] = what;
        object["to"] = to;
    };
    std::visit(Either{[&](RedIsAI red) { set("red", wordForSide(red.computer)); },
                      [&](BlueIsAI blue) { set("blue", wordForSide(blue.computer)); },
                      [&](AIDifficulty level) { set("level", wordFor(level)); },
                      [&](BocciaClass sportClass) { set("class", rawValue(sportClass)); },
                      [&](Country country) { set("country", wordFor(country)); }},
               choice);
}

void write(ordered_json& object, const Check& check) {
    object["hash"] = hexadecimal(check.hash);
}

void write(ordered_json& object, const Result& result) {
    object["hash"] = hexadecimal(result.hash);
    object["result"] = objectOf(result.score);
    object["ends"] = ordered_json::array();
    for (const Points& points : result.ends) {
        object["ends"].push_back(objectOf(points));
    }
}

} // namespace

std::string lineOf(const Heading& heading) {
    const MatchStart& start = heading.start;
    return lineOf(ordered_json{{"vorbel", "match"},
                               {"version", formatVersion},
                               {"physics", heading.physics},
                               {"seed", hexadecimal(heading.random.seed)},
                               {"drawn", heading.random.drawn},
                               {"red", wordForSide(start.redIsAI)},
                               {"blue", wordForSide(start.blueIsAI)},
                               {"level", wordFor(start.level)},
                               {"class", rawValue(start.sportClass)},
                               {"country", wordFor(start.playerCountry)},
                               {"opponent", wordFor(start.blueCountry)},
                               {"round", start.tournamentRound},
                               {"angle", start.aim.angle},
                               {"pitch", start.aim.pitch},
                               {"power", start.aim.power},
                               {"rising", start.powerDirection > 0},
                               {"scheduled", start.computerIsScheduled},
                               {"pace", start.powerPace}});
}

std::string lineOf(const Entry& entry) {
    ordered_json object{{"tick", entry.tick}};
    std::visit([&object](const auto& what) { write(object, what); }, entry.what);
    return lineOf(object);
}

} // namespace vorbel::recording
