#include "tools/sim/Ladder.h"
#include "tools/sim/MatchPlayer.h"
#include "tools/sim/Options.h"
#include "tools/sim/Signature.h"
#include "tools/sim/Trace.h"

#include <iostream>

namespace {

using namespace vorbel;
using namespace vorbel::sim;

constexpr int usageError = 2;

int playMatches(const Options& options) {
    for (int i = 0; i < options.matches; ++i) {
        const Pairing pairing{options.seed + static_cast<std::uint64_t>(i), options.red, options.blue};
        MatchPlayer match(pairing);
        if (options.trace) {
            match.setThrowObserver(
                [](const Throw& played, const GameLogic& game) { writeThrow(std::cout, played, game); });
        }
        if (!match.play()) {
            std::cerr << "vorbel-sim: match " << pairing.seed << " did not end\n";
            return EXIT_FAILURE;
        }
        writeResult(std::cout, pairing, match);
    }
    return EXIT_SUCCESS;
}

int run(const Options& options) {
    if (options.help) {
        std::cout << helpText();
    } else if (options.signature) {
        std::cout << std::hex << matchSignature() << '\n';
    } else if (options.ladder) {
        LadderSettings settings{.firstSeed = options.seed, .jobs = options.jobs};
        if (options.matchesGiven) {
            settings.matchesPerPair = options.matches + options.matches % 2;
        }
        writeLadder(std::cout, playLadder(settings), settings.matchesPerPair / 2);
    } else {
        return playMatches(options);
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::span all(arguments, static_cast<std::size_t>(argumentCount));
    const auto parsed = parseOptions(all.subspan(1));
    if (const auto* problem = std::get_if<std::string>(&parsed)) {
        std::cerr << "vorbel-sim: " << *problem << '\n';
        return usageError;
    }
    return run(std::get<Options>(parsed));
}
