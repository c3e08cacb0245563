// Adds each match to the career in the moment in which it ends.
#pragma once

#include "platform/runloop/MainQueue.h"

#include <functional>

namespace vorbel {

class Career;
class GameLogic;

// Listens to the match itself. Whether and when the window shows the end makes no difference: no key, no menu
// and no closing of the window can come in between.
class CareerRecorder {
public:
    // Calls `recorded` after each match that was added. Match and career must outlive it.
    CareerRecorder(const GameLogic& match, Career& career, std::function<void()> recorded);

private:
    Subscription phaseChanges_;
};

} // namespace vorbel
