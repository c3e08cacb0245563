// What a recording's lines say; nothing is taken on trust.
#include "recording/RecordedLines.h"
#include "recording/RecordedWords.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <limits>

namespace vorbel::recording {

namespace {

using nlohmann::ordered_json;

constexpr std::uint64_t mostDrawn = 100'000'000; // more than a day of throws needs

std::optional<std::string_view> textIn(const ordered_json& object, const char* member) {
    const auto found = object.find(member);
    return found != object.end() && found->is_string()
               ? std::optional<std::string_view>(found->get_ref<const std::string&>())
               : std::nullopt;
}

std::optional<std::uint64_t> hexadecimalIn(const ordered_json& object, const char* member) {
    constexpr int base = 16;
    const std::string_view text = textIn(object, member).value_or("");
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

bool isWithin(double number, double low, double high) {
    return number >= low && number <= high;
}

std::optional<double> numberIn(const ordered_json& object, const char* member, double low, double high) {
    const auto found = object.find(member);
    if (found == object.end() || !found->is_number() || !isWithin(found->get<double>(), low, high)) {
        return std::nullopt;
    }
    return found->get<double>();
}

std::optional<std::int64_t> integerIn(const ordered_json& object, const char* member, std::int64_t low,
                                      std::int64_t high) {
    const auto found = object.find(member);
    if (found == object.end() || !found->is_number_integer() ||
        !isWithin(found->get<double>(), static_cast<double>(low), static_cast<double>(high))) {
        return std::nullopt;
    }
    return found->get<std::int64_t>();
}

std::optional<bool> sideIn(const ordered_json& object, const char* member) {
    return isAIFor(textIn(object, member).value_or(""));
}

std::optional<bool> booleanIn(const ordered_json& object, const char* member) {
    const auto found = object.find(member);
    return found != object.end() && found->is_boolean() ? std::optional(found->get<bool>()) : std::nullopt;
}

std::optional<Aim> aimIn(const ordered_json& object) {
    constexpr double beyondSwing = 10; // percent; a throw may be locked a step beyond the range
    const auto angle = numberIn(object, "angle", -aim::angleLimit, aim::angleLimit);
    const auto pitch = numberIn(object, "pitch", 0, aim::pitchLimit);
    const auto power = numberIn(object, "power", 0, aim::highestPower + beyondSwing);
    return angle && pitch && power ? std::optional(Aim{*angle, *pitch, *power}) : std::nullopt;
}

std::optional<MatchStart> startIn(const ordered_json& object) {
    constexpr int tournamentRounds = 4;
    const auto red = sideIn(object, "red");
    const auto blue = sideIn(object, "blue");
    const auto level = levelFor(textIn(object, "level").value_or(""));
    const auto sportClass = bocciaClassFromRawValue(textIn(object, "class").value_or(""));
    const auto country = countryFor(textIn(object, "country").value_or(""));
    const auto opponent = countryFor(textIn(object, "opponent").value_or(""));
    const auto round = integerIn(object, "round", 0, tournamentRounds);
    const auto aim = aimIn(object);
    const auto rising = booleanIn(object, "rising");
    const auto scheduled = booleanIn(object, "scheduled");
    const auto pace = numberIn(object, "pace", 0, 1);
    if (!red || !blue || !level || !sportClass || !country || !opponent || !round || !aim || !rising ||
        !scheduled || !pace) {
        return std::nullopt;
    }
    return MatchStart{.redIsAI = *red,
                      .blueIsAI = *blue,
                      .level = *level,
                      .sportClass = *sportClass,
                      .playerCountry = *country,
                      .blueCountry = *opponent,
                      .tournamentRound = static_cast<int>(*round),
                      .aim = *aim,
                      .powerDirection = *rising ? 1.0 : -1.0,
                      .computerIsScheduled = *scheduled,
                      .powerPace = *pace};
}

std::optional<MatchAction> actionIn(const ordered_json& object) {
    constexpr double farthest = std::numeric_limits<double>::max();
    const auto kind = actionFor(*textIn(object, "do"));
    const auto by = object.contains("by") ? numberIn(object, "by", -farthest, farthest) : 0.0;
    return kind && by ? std::optional(MatchAction{*kind, *by}) : std::nullopt;
}

template <typename Value>
std::optional<Choice> chosen(const std::optional<Value>& value) {
    return value ? std::optional<Choice>(*value) : std::nullopt;
}

std::optional<Choice> choiceIn(const ordered_json& object) {
    const std::string_view what = *textIn(object, "set");
    const std::string_view word = textIn(object, "to").value_or("");
    if (what == "red" || what == "blue") {
        const auto isAI = sideIn(object, "to");
        if (!isAI) {
            return std::nullopt;
        }
        return what == "red" ? Choice(RedIsAI{*isAI}) : Choice(BlueIsAI{*isAI});
    }
    return what == "level"     ? chosen(levelFor(word))
           : what == "class"   ? chosen(bocciaClassFromRawValue(word))
           : what == "country" ? chosen(countryFor(word))
                               : std::nullopt;
}

std::optional<Points> pointsIn(const ordered_json& object) {
    constexpr int most = 1'000'000;
    const auto red = object.is_object() ? integerIn(object, "red", 0, most) : std::nullopt;
    const auto blue = object.is_object() ? integerIn(object, "blue", 0, most) : std::nullopt;
    return red && blue ? std::optional(Points{static_cast<int>(*red), static_cast<int>(*blue)})
                       : std::nullopt;
}

std::optional<Result> resultIn(const ordered_json& object, std::uint64_t hash) {
    const auto score = pointsIn(object["result"]);
    const auto ends = object.find("ends");
    if (!score || ends == object.end() || !ends->is_array()) {
        return std::nullopt;
    }
    Result result{hash, *score, {}};
    for (const ordered_json& end : *ends) {
        const auto points = pointsIn(end);
        if (!points) {
            return std::nullopt;
        }
        result.ends.push_back(*points);
    }
    return result;
}

// As an entry of that tick.
template <typename What>
std::optional<Entry> entryOf(std::int64_t tick, const std::optional<What>& what) {
    return what ? std::optional(Entry{tick, *what}) : std::nullopt;
}

} // namespace

std::variant<Heading, Foreign, Newer> headingIn(std::string_view line) {
    const ordered_json object = ordered_json::parse(line, nullptr, false);
    if (!object.is_object() || textIn(object, "vorbel") != "match") {
        return Foreign{};
    }
    const auto version = integerIn(object, "version", 1, std::numeric_limits<int>::max());
    if (version && *version > formatVersion) {
        return Newer{static_cast<int>(*version)};
    }
    const auto physics = textIn(object, "physics");
    const auto seed = hexadecimalIn(object, "seed");
    const auto drawn = integerIn(object, "drawn", 0, mostDrawn);
    const auto start = startIn(object);
    if (!version || !physics || !seed || !drawn || !start) {
        return Foreign{};
    }
    return Heading{std::string(*physics), {*seed, static_cast<std::uint64_t>(*drawn)}, *start};
}

std::optional<Entry> entryIn(std::string_view line) {
    const ordered_json object = ordered_json::parse(line, nullptr, false);
    const auto tick = object.is_object() ? integerIn(object, "tick", 0, mostTicks) : std::nullopt;
    if (!tick) {
        return std::nullopt;
    }
    if (textIn(object, "do")) {
        return entryOf(*tick, actionIn(object));
    }
    if (textIn(object, "set")) {
        return entryOf(*tick, choiceIn(object));
    }
    const auto hash = hexadecimalIn(object, "hash");
    if (!hash) {
        return std::nullopt;
    }
    return object.contains("result") ? entryOf(*tick, resultIn(object, *hash))
                                     : std::optional(Entry{*tick, Check{*hash}});
}

} // namespace vorbel::recording
