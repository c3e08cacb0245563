#include "tools/sim/MatchReport.h"

#include "scene/Ball.h"
#include "tools/sim/Levels.h"
#include "tools/sim/Trace.h"

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>

namespace vorbel::sim {

namespace {

Vec3 thrownBall(const Throw& played) {
    return played.balls.back()->position();
}

void writeRow(std::ostream& out, const Pairing& pairing, const Throw& played, const GameLogic& game) {
    const Vec3 ball = thrownBall(played);
    const auto jack = game.thrownBalls().jack;
    out << std::fixed << std::setprecision(4) << pairing.seed << ',' << levelName(pairing.red) << ','
        << levelName(pairing.blue) << ',' << played.end << ',' << nodeName(played.side) << ','
        << nodeName(played.ball) << ',' << played.angle << ',' << played.power << ',' << ball.x << ','
        << ball.z << ',';
    if (jack) {
        out << jack->x << ',' << jack->z << ',' << glm::distance(ball, *jack);
    } else {
        out << ",,"; // thrown where it did not count
    }
    out << ',' << game.redScore << ',' << game.blueScore << '\n';
}

std::unique_ptr<std::ostream> recordingOf(const Pairing& pairing, const std::string& folder) {
    return std::make_unique<std::ofstream>(std::filesystem::path(folder) / recordingName(pairing));
}

} // namespace

MatchReport reportOf(const Pairing& pairing, const Wanted& wanted) {
    MatchReport report{.pairing = pairing};
    std::ostringstream text;
    std::ostringstream rows;
    MatchPlayer match(pairing);
    if (!wanted.recordings.empty()) {
        match.record([&] { return recordingOf(pairing, wanted.recordings); });
    }
    match.setThrowObserver([&](const Throw& played, const GameLogic& game) {
        if (wanted.trace) {
            writeThrow(text, played, game);
        }
        if (wanted.rows) {
            writeRow(rows, pairing, played, game);
        }
        const auto jack = game.thrownBalls().jack;
        if (wanted.places && jack && played.ball != BallColor::jack) {
            const Vec3 offset = thrownBall(played) - *jack;
            report.places.push_back(
                {played.side == BallColor::red ? pairing.red : pairing.blue, offset.x, -offset.z});
        }
    });
    report.hasEnded = match.play();
    report.isRecorded = wanted.recordings.empty() || match.isRecorded();
    report.redHasWon = match.game().redScore > match.game().blueScore;
    writeResult(text, pairing, match);
    report.text = text.str();
    report.rows = rows.str();
    return report;
}

std::string headOfRows() {
    return "seed,red_level,blue_level,end,side,ball,angle_rad,power_percent,ball_x_m,ball_z_m,jack_x_m,jack_"
           "z_m,"
           "distance_m,red_score,blue_score\n";
}

std::string recordingName(const Pairing& pairing) {
    return std::string(levelName(pairing.red)) + "-" + std::string(levelName(pairing.blue)) + "-" +
           std::to_string(pairing.seed) + ".jsonl";
}

} // namespace vorbel::sim
