#include "recording/Recorder.h"

#include "engine/GameLogic.h"
#include "recording/PhysicsId.h"
#include "recording/RecordedLines.h"

#include <ostream>

namespace vorbel::recording {

Recorder::Recorder(GameLogic& match, MatchRandom& random, OpenOutput open)
    : match_(match), random_(random), open_(std::move(open)) {
    follow();
    begin();
}

template <typename T, typename Choose>
void Recorder::observe(const Published<T>& value, Choose choose) {
    observations_.push_back(value.onWillChange([this, choose](const T& next) { add(Choice(choose(next))); }));
}

void Recorder::follow() {
    observations_.push_back(match_.onMatchBegan([this] {
        if (seeds_ != nullptr) {
            random_.moveTo({MatchRandom::seedFrom(*seeds_), 0});
        }
        begin();
    }));
    observations_.push_back(match_.onAction([this](const MatchAction& action) { add(action); }));
    observations_.push_back(match_.onTick([this] { tickIsOver(); }));
    observations_.push_back(match_.aimState.onWillChange([this](AimState next) {
        if (next == AimState::thrown && !isOpen_ && !isOver_) {
            openOutput();
        }
    }));
    observe(match_.redIsAI, [](bool computer) { return RedIsAI{computer}; });
    observe(match_.blueIsAI, [](bool computer) { return BlueIsAI{computer}; });
    observe(match_.aiDifficulty, [](AIDifficulty level) { return level; });
    observe(match_.playerClass, [](BocciaClass sportClass) { return sportClass; });
    observe(match_.playerCountry, [](Country country) { return country; });
}

void Recorder::begin() {
    tick_ = 0;
    hash_ = {};
    isOver_ = false;
    output_ = nullptr;
    isOpen_ = false;
    waiting_ = lineOf(Heading{std::string(physicsId), random_.place(), match_.start()});
}

void Recorder::add(std::variant<MatchAction, Choice, Check, Result> what) {
    if (!isOver_) {
        write(lineOf(Entry{tick_, std::move(what)}));
    }
}

void Recorder::write(const std::string& line) {
    if (!isOpen_) {
        waiting_ += line;
    } else if (output_) {
        *output_ << line << std::flush;
        isWritten_ = isWritten_ && *output_;
    }
}

void Recorder::openOutput() {
    output_ = open_();
    isOpen_ = true;
    isWritten_ = isWritten_ && output_;
    write(std::exchange(waiting_, {}));
}

void Recorder::tickIsOver() {
    if (isOver_) {
        return;
    }
    ++tick_;
    hash_.addTick(match_);
    if (match_.phase == GamePhase::gameOver) {
        add(result());
        isOver_ = true;
        output_ = nullptr;
    } else if (tick_ % checkInterval == 0 && isOpen_) {
        add(Check{hash_.value()});
    }
}

Result Recorder::result() const {
    Result result{hash_.value(), {match_.redScore, match_.blueScore}, {}};
    for (const EndResult& end : match_.endHistory.get()) {
        result.ends.push_back({end.red, end.blue});
    }
    return result;
}

} // namespace vorbel::recording
