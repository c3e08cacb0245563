#include "recording/Replay.h"

#include "engine/GameLogic.h"

namespace vorbel::recording {

namespace {

struct StartChooser {
    MatchStart& start;

    void operator()(RedIsAI red) const { start.redIsAI = red.computer; }
    void operator()(BlueIsAI blue) const { start.blueIsAI = blue.computer; }
    void operator()(AIDifficulty level) const { start.level = level; }
    void operator()(BocciaClass sportClass) const { start.sportClass = sportClass; }
    void operator()(Country country) const { start.playerCountry = country; }
};

} // namespace

Replay::Replay(Recording recording) : recording_(std::move(recording)), random_(recording_.heading.random) {}

void Replay::begin(GameLogic& match) {
    match_ = &match;
    match.beginMatch(recording_.heading.start);
    random_.moveTo(recording_.heading.random); // the arena and the beginning took some of it
    goOn();
}

void Replay::tick() {
    if (state_ != State::running) {
        return;
    }
    queue_.tick();
    ++tick_;
    hash_.addTick(*match_);
    goOn();
}

std::vector<Entry>::const_iterator Replay::firstThrow() const {
    return std::ranges::find_if(recording_.entries, [](const Entry& entry) {
        const auto* const action = std::get_if<MatchAction>(&entry.what);
        return action != nullptr &&
               (action->kind == MatchAction::Kind::press || action->kind == MatchAction::Kind::step);
    });
}

MatchStart Replay::startOfPlay() const {
    MatchStart start = recording_.heading.start;
    for (auto entry = recording_.entries.begin(); entry != firstThrow(); ++entry) {
        if (const auto* const choice = std::get_if<Choice>(&entry->what)) {
            std::visit(StartChooser{start}, *choice);
        }
    }
    return start;
}

void Replay::skipIdleBeginning(std::int64_t ticksLeft) {
    const auto first = firstThrow();
    while (first != recording_.entries.end() && tick_ < first->tick - ticksLeft && state_ == State::running) {
        tick();
    }
}

void Replay::goOn() {
    while (state_ == State::running && next_ < recording_.entries.size() &&
           recording_.entries[next_].tick == tick_) {
        std::visit([this](const auto& what) { perform(what); }, recording_.entries[next_].what);
        ++next_;
    }
    if (state_ == State::running && next_ == recording_.entries.size()) {
        state_ = State::cutShort;
    }
}

void Replay::perform(const MatchAction& action) {
    switch (action.kind) {
    case MatchAction::Kind::press:
        return match_->processInput();
    case MatchAction::Kind::takeBack:
        return match_->takeBack();
    case MatchAction::Kind::turn:
        return match_->turnAim(action.by);
    case MatchAction::Kind::raise:
        return match_->raiseAim(action.by);
    case MatchAction::Kind::power:
        return match_->changePower(action.by);
    case MatchAction::Kind::pace:
        return match_->setPowerPace(action.by);
    case MatchAction::Kind::step:
        return queue_.step();
    }
}

namespace {

struct Chooser {
    GameLogic& match;

    void operator()(RedIsAI red) const { match.redIsAI = red.computer; }
    void operator()(BlueIsAI blue) const { match.blueIsAI = blue.computer; }
    void operator()(AIDifficulty level) const { match.aiDifficulty = level; }
    void operator()(BocciaClass sportClass) const { match.playerClass = sportClass; }
    void operator()(Country country) const { match.playerCountry = country; }
};

} // namespace

void Replay::perform(const Choice& choice) {
    std::visit(Chooser{*match_}, choice);
}

void Replay::perform(const Check& check) {
    mustBe(check.hash == hash_.value());
}

void Replay::perform(const Result& result) {
    std::vector<Points> ends;
    for (const EndResult& end : match_->endHistory.get()) {
        ends.push_back({end.red, end.blue});
    }
    mustBe(match_->phase == GamePhase::gameOver && result.hash == hash_.value() && result.ends == ends &&
           result.score == Points{match_->redScore, match_->blueScore});
    if (state_ == State::running) {
        state_ = State::complete;
    }
}

std::string Replay::problem() const {
    const std::string place = "tick " + std::to_string(tick_);
    return state_ == State::cutShort
               ? "it ends before the match does, after " + place + "; so far it is as recorded"
           : state_ == State::parted
               ? "the match has gone another way by " + place +
                     ": the recording was changed, or made where sines have other last bits"
               : "";
}

void Replay::mustBe(bool asRecorded) {
    if (!asRecorded) {
        state_ = State::parted;
    }
}

} // namespace vorbel::recording
