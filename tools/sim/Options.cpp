#include "tools/sim/Options.h"

#include "tools/sim/Levels.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <thread>

namespace vorbel::sim {

namespace {

template <typename Number>
std::optional<Number> number(std::string_view text, Number least) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < least) {
        return std::nullopt;
    }
    return value;
}

std::optional<AIDifficulty> level(std::string_view text) {
    for (const AIDifficulty candidate : allDifficulties) {
        if (text == levelName(candidate)) {
            return candidate;
        }
    }
    return std::nullopt;
}

template <typename Value>
bool store(Value& target, const std::optional<Value>& value) {
    if (value) {
        target = *value;
    }
    return value.has_value();
}

bool setFlag(Options& options, std::string_view name) {
    if (name == "--help") {
        return options.help = true;
    }
    if (name == "--ladder") {
        return options.ladder = true;
    }
    if (name == "--signature") {
        return options.signature = true;
    }
    if (name == "--trace") {
        return options.trace = true;
    }
    return false;
}

bool takesValue(std::string_view name) {
    constexpr std::array<std::string_view, 8> names{"--matches", "--red",    "--blue", "--seed",
                                                    "--replay",  "--record", "--csv",  "--plot"};
    return std::ranges::find(names, name) != names.end();
}

std::string* pathFor(Options& options, std::string_view name) {
    return name == "--replay"   ? &options.replay
           : name == "--record" ? &options.record
           : name == "--csv"    ? &options.csv
           : name == "--plot"   ? &options.plot
                                : nullptr;
}

bool setValue(Options& options, std::string_view name, std::string_view value) {
    if (name == "--matches") {
        return options.matchesGiven = store(options.matches, number(value, 1));
    }
    if (name == "--red") {
        return store(options.red, level(value));
    }
    if (name == "--blue") {
        return store(options.blue, level(value));
    }
    if (std::string* const path = pathFor(options, name)) {
        *path = value;
        return !path->empty();
    }
    return store(options.seed, number(value, std::uint64_t{0}));
}

} // namespace

std::variant<Options, std::string> parseOptions(std::span<const char* const> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string name = arguments[i];
        if (setFlag(options, name)) {
            continue;
        }
        if (name == "--jobs") {
            const bool given =
                i + 1 < arguments.size() && !std::string_view(arguments[i + 1]).starts_with("-");
            const auto jobs = given ? number(arguments[++i], 1U)
                                    : std::optional(std::max(1U, std::thread::hardware_concurrency()));
            if (!store(options.jobs, jobs)) {
                return std::string(arguments[i]) + " is no value for --jobs; see vorbel-sim --help";
            }
            continue;
        }
        if (!takesValue(name)) {
            return "unknown option " + name + "; see vorbel-sim --help";
        }
        if (++i == arguments.size()) {
            return name + " needs a value; see vorbel-sim --help";
        }
        if (!setValue(options, name, arguments[i])) {
            return std::string(arguments[i]) + " is no value for " + name + "; see vorbel-sim --help";
        }
    }
    return options;
}

LadderSettings ladderSettings(const Options& options) {
    LadderSettings settings{.firstSeed = options.seed, .jobs = options.jobs};
    if (options.matchesGiven) {
        settings.matchesPerCell = options.matches / 2 + options.matches % 2;
    }
    return settings;
}

std::string_view helpText() {
    return "vorbel-sim: boccia matches between two computer sides, without a window.\n"
           "\n"
           "  --matches N   play N matches, with the seeds S, S + 1, … (default 1; with --ladder 200 a "
           "pair)\n"
           "  --red LEVEL   red's level: easy, medium, hard or ultra (default medium)\n"
           "  --blue LEVEL  blue's level (default medium)\n"
           "  --seed S      first seed: the same seed always gives the same match (default 1)\n"
           "  --trace       a line for every throw: its aim, where the balls came to rest, turn and score\n"
           "  --ladder      every level against every level: a table of win rates\n"
           "  --signature   one number that changes only when matches go differently\n"
           "  --jobs [N]    N threads, or one for each processor; the results are the same (default 1)\n"
           "  --csv FILE    a row for every throw\n"
           "  --plot FILE   a picture (SVG) of where each level's balls come to rest around the jack\n"
           "  --record FOLDER  a recording of each match\n"
           "  --replay FILE plays a recorded match again, and sees whether it goes as it went\n"
           "  --help        this text\n";
}

} // namespace vorbel::sim
