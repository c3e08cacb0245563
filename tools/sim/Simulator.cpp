#include "tools/sim/Simulator.h"

#include "tools/sim/Ladder.h"
#include "tools/sim/MatchPlayer.h"
#include "tools/sim/Options.h"
#include "tools/sim/Progress.h"
#include "tools/sim/Signature.h"
#include "tools/sim/Trace.h"

#include <cstdlib>
#include <ostream>

namespace vorbel::sim {

namespace {

constexpr int usageError = 2;

// False when a match did not end. Nobody waits for matches that cannot be told.
bool playMatches(const Options& options, std::ostream& out, std::ostream& errors) {
    for (int i = 0; i < options.matches && out; ++i) {
        const Pairing pairing{options.seed + static_cast<std::uint64_t>(i), options.red, options.blue};
        MatchPlayer match(pairing);
        if (options.trace) {
            match.setThrowObserver(
                [&out](const Throw& played, const GameLogic& game) { writeThrow(out, played, game); });
        }
        if (!match.play()) {
            errors << "vorbel-sim: match " << pairing.seed << " did not end\n";
            return false;
        }
        writeResult(out, pairing, match);
        out.flush();
    }
    return true;
}

WinTable playLadder(const LadderSettings& settings, std::ostream* terminal) {
    Progress progress(terminal, matchesOf(settings));
    return playLadder(settings, [&progress] { progress.addOne(); });
}

bool run(const Options& options, std::ostream& out, std::ostream& errors, std::ostream* terminal) {
    if (options.help) {
        out << helpText();
    } else if (options.signature) {
        out << std::hex << matchSignature() << '\n';
    } else if (options.ladder) {
        const LadderSettings settings = ladderSettings(options);
        writeLadder(out, playLadder(settings, terminal), settings.matchesPerCell);
    } else {
        return playMatches(options, out, errors);
    }
    return true;
}

} // namespace

int simulate(std::span<const char* const> arguments, std::ostream& out, std::ostream& errors,
             std::ostream* terminal) {
    const auto parsed = parseOptions(arguments);
    if (const auto* problem = std::get_if<std::string>(&parsed)) {
        errors << "vorbel-sim: " << *problem << '\n';
        return usageError;
    }
    if (!run(std::get<Options>(parsed), out, errors, terminal)) {
        return EXIT_FAILURE;
    }
    if (!out.flush()) {
        errors << "vorbel-sim: cannot write the output\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace vorbel::sim
