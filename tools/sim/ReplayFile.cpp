#include "tools/sim/ReplayFile.h"

#include "platform/HeadlessPlatform.h"
#include "recording/RecordedFile.h"
#include "recording/Replay.h"
#include "tools/sim/ThrowWatch.h"
#include "tools/sim/Trace.h"

#include <iomanip>
#include <ostream>

namespace vorbel::sim {

namespace {

void play(recording::Replay& replay, bool withThrows, std::ostream& out) {
    HeadlessPlatform platform(0); // whose clock and random numbers are not asked
    GameLogic match({replay.queue(), replay.random(), platform.audio, platform.resources});
    ThrowWatch watch(match, [&](const Throw& played, const GameLogic& game) {
        if (withThrows) {
            writeThrow(out, played, game);
        }
    });
    const Subscription ticks = match.onTick([&] { watch.look(); }); // before what was done after the tick
    match.startAimingLoop();
    replay.begin(match);
    while (replay.state() == recording::Replay::State::running && out) {
        replay.tick();
    }
    if (replay.state() == recording::Replay::State::complete) {
        out << "as recorded  ";
        writeScore(out, match);
        out << std::fixed << std::setprecision(0) << "  "
            << static_cast<double>(replay.ticks()) * GameLogic::tickPeriod << " s on the clock\n";
    }
}

} // namespace

bool replayFile(const std::string& file, bool withThrows, std::ostream& out, std::ostream& errors) {
    auto read = recording::recordingInFile(file);
    std::string problem;
    if (auto* const recorded = std::get_if<recording::Recording>(&read)) {
        recording::Replay replay(std::move(*recorded));
        play(replay, withThrows, out);
        problem = replay.problem();
    } else {
        problem = std::get<std::string>(read);
    }
    if (!problem.empty()) {
        errors << "vorbel-sim: " << file << ": " << problem << '\n';
    }
    return problem.empty();
}

} // namespace vorbel::sim
