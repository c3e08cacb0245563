// How a match began: all that it takes from what was before.
#pragma once

#include "l10n/BocciaClass.h"
#include "l10n/Country.h"
#include "rules/Aim.h"
#include "rules/MatchTypes.h"

namespace vorbel {

struct MatchStart {
    bool redIsAI = false;
    bool blueIsAI = false;
    AIDifficulty level = AIDifficulty::medium;
    BocciaClass sportClass = BocciaClass::bc2;
    Country playerCountry = Country::france;
    Country blueCountry = Country::germany;
    int tournamentRound = 0;          // 1 … 4; 0: no tournament
    Aim aim{0, 0, aim::startPower};   // left by the match before, like the next two
    double powerDirection = 1;        // +1 or −1
    bool computerIsScheduled = false; // a step of its turn, whether or not it will be its turn
    double powerPace = 1;             // 0…1
};

} // namespace vorbel
