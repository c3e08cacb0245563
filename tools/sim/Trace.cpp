#include "tools/sim/Trace.h"

#include "l10n/L10n.h"
#include "tools/sim/Levels.h"

#include <array>
#include <iomanip>
#include <ostream>

namespace vorbel::sim {

namespace {

std::string_view phaseName(GamePhase phase) {
    constexpr std::array<std::string_view, 4> names{"jack", "playing", "end over", "match over"};
    return names[static_cast<std::size_t>(phase)];
}

} // namespace

void writeThrow(std::ostream& out, const Throw& played, const GameLogic& game) {
    out << std::fixed << "end " << played.end << "  " << std::setw(4) << nodeName(played.side) << " throws "
        << std::setw(4) << nodeName(played.ball) << std::showpos << std::setprecision(4) << "  angle "
        << played.angle << std::noshowpos << std::setprecision(2) << "  power " << std::setw(6)
        << played.power << "  rest" << std::setprecision(3);
    for (const Node::Ptr& ball : played.balls) {
        out << ' ' << ball->name << '(' << ball->position().x << ' ' << ball->position().z << ')';
    }
    out << "  next " << nodeName(game.currentTurn) << "  left " << game.redBallsLeft << ':'
        << game.blueBallsLeft << "  score " << game.redScore << ':' << game.blueScore << "  "
        << phaseName(game.phase) << '\n';
}

void writeScore(std::ostream& out, const GameLogic& game) {
    out << "score " << game.redScore << ':' << game.blueScore << "  ends";
    for (const EndResult& end : game.endHistory.get()) {
        out << ' ' << end.red << ':' << end.blue;
    }
}

void writeResult(std::ostream& out, const Pairing& pairing, const MatchPlayer& match) {
    out << "match " << pairing.seed << "  red " << levelName(pairing.red) << "  blue "
        << levelName(pairing.blue) << "  ";
    writeScore(out, match.game());
    out << std::fixed << std::setprecision(0) << "  " << match.simulatedSeconds() << " s on the clock\n";
}

} // namespace vorbel::sim
