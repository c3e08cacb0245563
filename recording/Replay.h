// Plays a recorded match again, and sees whether it goes as it went.
#pragma once

#include "recording/Recording.h"
#include "recording/ReplayQueue.h"
#include "recording/StateHash.h"

#include <string>

namespace vorbel::recording {

// A match made with these services is the recording's from `begin` on. Main thread only.
class Replay {
public:
    explicit Replay(Recording recording);

    // For the match's Platform; both live as long as this.
    [[nodiscard]] ReplayQueue& queue() { return queue_; }
    [[nodiscard]] MatchRandom& random() { return random_; }

    // Puts the match, which must outlive this, to where the recorded one began, and plays what was done before its first
    // tick. Its tick must run.
    void begin(GameLogic& match);

    enum class State : std::uint8_t {
        running,
        complete, // it came to its end as recorded
        parted, // it went differently: the recording was changed, or made on a machine that calculates differently
        cutShort, // it went as recorded as far as the recording goes
    };
    [[nodiscard]] State state() const { return state_; }
    // A sentence on what is wrong with it; empty as long as nothing is.
    [[nodiscard]] std::string problem() const;

    // One tick, and all that was done before the next. Nothing once it is not running any more.
    void tick();
    // With what was chosen before the first throw was begun.
    [[nodiscard]] MatchStart startOfPlay() const;
    // The same, as long as nothing has been done yet and nothing will be done within as many ticks.
    void skipIdleBeginning(std::int64_t ticksLeft);

    [[nodiscard]] std::int64_t ticks() const { return tick_; } // that are over
    [[nodiscard]] const Recording& recording() const { return recording_; }

private:
    [[nodiscard]] std::vector<Entry>::const_iterator firstThrow() const;
    void goOn();
    void perform(const MatchAction& action);
    void perform(const Choice& choice);
    void perform(const Check& check);
    void perform(const Result& result);
    void mustBe(bool asRecorded);

    Recording recording_;
    ReplayQueue queue_;
    MatchRandom random_;
    GameLogic* match_ = nullptr;
    std::size_t next_ = 0; // of the entries
    std::int64_t tick_ = 0;
    StateHash hash_;
    State state_ = State::running;
};

} // namespace vorbel::recording
