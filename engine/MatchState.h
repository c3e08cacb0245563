// Where a match stands. The match alone writes it; everybody may read and observe it.
#pragma once

#include "platform/runloop/Published.h"
#include "rules/Aim.h"
#include "rules/MatchTypes.h"
#include "rules/Scoring.h"
#include "rules/TurnOrder.h"

#include <vector>

namespace vorbel {

struct MatchState {
    Published<AimState> aimState{AimState::idle};
    Published<GamePhase> phase{GamePhase::throwingJack};
    Published<BallColor> currentTurn{BallColor::red}; // red or blue
    Published<bool> tournamentActive{false};
    Published<int> tournamentRound{0}; // 1 … 4 while a tournament runs, then that of its last match
    // Colour balls still to be thrown, or not yet at rest, in this end.
    Published<int> redBallsLeft{ballsPerSide};
    Published<int> blueBallsLeft{ballsPerSide};
    Published<int> redScore{0};
    Published<int> blueScore{0};
    Published<std::vector<EndResult>> endHistory{{}};
    Published<int> currentEnd{1};                // from 1
    Published<double> aimAngle{0};               // rad, 0 down the court, positive to the right
    Published<double> aimPitch{0};               // rad above the court
    Published<double> aimPower{aim::startPower}; // percent of full throwing speed

    int jackThrowAttempts = 0; // in this end
    double powerPace = 1;      // of the swing, 1 as the class has it; at 0 the thrower sets the power by hand
    double powerDirection = 1; // +1 while the power rises, −1 while it falls; survives the throw
    int ticksSinceThrown = 0;  // since the last release

    [[nodiscard]] Aim aim() const { return {aimAngle, aimPitch, aimPower}; }
    [[nodiscard]] Points score() const { return {redScore, blueScore}; }
    [[nodiscard]] BallsLeft ballsLeft() const { return {redBallsLeft, blueBallsLeft}; }
};

} // namespace vorbel
