#include "app/career/CareerRecorder.h"

#include "app/career/Career.h"
#include "engine/GameLogic.h"

namespace vorbel {

// A phase is told before it changes; the scores of the match are final by then.
CareerRecorder::CareerRecorder(const GameLogic& match, Career& career, std::function<void()> recorded)
    : phaseChanges_(
          match.phase.onWillChange([&match, &career, recorded = std::move(recorded)](const GamePhase& next) {
              if (next == GamePhase::gameOver && match.phase != GamePhase::gameOver) {
                  career.addMatch(match.redScore, match.blueScore);
                  recorded();
              }
          })) {}

} // namespace vorbel
