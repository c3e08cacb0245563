// A throw with one switch: what moves by itself, and what a press means.
#pragma once

#include "l10n/TextKey.h"

#include <optional>

namespace vorbel {

class GameLogic;
class Options;

// Everything that it sets could have been set with the game's keys. Main thread only.
class SwitchThrow {
public:
    static constexpr int beatsOfAChoice = 5; // a choice waits as long as the aim takes for so many steps

    // Both must outlive it.
    SwitchThrow(GameLogic& match, const Options& options) : match_(match), options_(options) {}

    // One step: the aim moves on, or the next choice is offered.
    void beat();

    enum class Result { done, menuWanted };
    Result press();

    // What a press would do now; none while there is nothing to do but to wait.
    [[nodiscard]] std::optional<TextKey> prompt() const;

private:
    enum class Stage { waiting, begin, angle, pitch, power, asked, goOn };

    [[nodiscard]] Stage stage() const;
    [[nodiscard]] bool rests() const; // whoever listens is not told the same for ever
    void follow();                    // forgets what belonged to a stage that is over
    void aim();
    void lockPower();
    void answer();
    void aimAnew();
    void sweepAngle();
    void sweepPitch();
    void sweepPower(); // where it does not swing by itself

    GameLogic& match_;
    const Options& options_;
    Stage followed_ = Stage::waiting;
    int beats_ = 0;
    bool second_ = false;      // of two choices
    bool angleLocked_ = false; // the direction stands, the height is being set
    bool asked_ = false;       // whether to throw
    double direction_ = 1;     // of the sweep
};

} // namespace vorbel
