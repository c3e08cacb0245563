#include "app/speech/Narrator.h"

#include "app/options/Options.h"
#include "app/speech/SpokenMessage.h"
#include "narration/Aiming.h"
#include "narration/Balls.h"
#include "narration/Sentences.h"
#include "narration/Standing.h"

#include <utility>

namespace vorbel {

namespace {

bool isEndOver(const GameLogic& match) {
    return match.phase == GamePhase::endOver || match.phase == GamePhase::gameOver;
}

} // namespace

Narrator::Narrator(const GameLogic& match, const Options& options, MainQueue& queue, Voice& voice)
    : match_(match), options_(options), queue_(queue), voice_(voice) {
    connect(&options_, &Options::changed, this, &Narrator::followOption);
    followOption();
}

void Narrator::followOption() {
    const bool isOn = options_.isOn(Option::speech);
    if (isOn && observations_.empty()) {
        observe();
    } else if (!isOn && !observations_.empty()) {
        observations_.clear();
        voice_.hush();
    }
}

void Narrator::observe() {
    observations_.push_back(match_.message.onWillChange([this](const std::string& next) {
        message_ = next;
        tellSoon();
    }));
    observations_.push_back(
        match_.aimState.onWillChange([this](const AimState& next) { aimStateWillBe(next); }));
    observations_.push_back(match_.endHistory.onWillChange([this](const std::vector<EndResult>& next) {
        endIsOver_ = next.size() > match_.endHistory.get().size();
        tellSoon();
    }));
    for (const auto* value : {&match_.aimAngle, &match_.aimPitch, &match_.aimPower}) {
        observations_.push_back(value->onWillChange([this, value](const double& next) {
            if (next != *value) { // a power that is set by hand is written with every tick
                aimMoves();
            }
        }));
    }
}

void Narrator::aimStateWillBe(AimState next) {
    const AimState before = match_.aimState;
    if (before == AimState::thrown && next != AimState::thrown) {
        rest_ = {match_.thrownBalls(), thrown_ ? std::optional(thrown_->position()) : std::nullopt};
        thrown_ = nullptr;
    } else if (next == AimState::thrown) {
        thrown_ = match_.phase == GamePhase::throwingJack ? nullptr : match_.activeBallNode();
        power_ = before == AimState::aimingPower ? std::optional(match_.aimPower.get()) : std::nullopt;
    } else if (next == AimState::aimingAngle) {
        aimBegins_ = true;
    } else if (next == AimState::aimingPower) {
        aimIsLocked_ = true;
    }
    tellSoon();
}

bool Narrator::humanAims() const {
    return !match_.isCurrentTurnAI() && match_.aimState == AimState::aimingAngle;
}

void Narrator::aimMoves() {
    if (humanAims() || match_.humanSetsPower()) {
        tellAimOnceItRests();
    }
}

// Until it rests for a moment an aim is not worth a word: the next one would cut it short.
void Narrator::tellAimOnceItRests() {
    constexpr double rest = 0.4; // s
    queue_.postAfter(rest, lifetime_.whileAlive([this, move = ++aimMoves_] {
        if (move == aimMoves_ && options_.isOn(Option::speech)) {
            tellAim();
        }
    }));
}

void Narrator::tellAim() {
    const bool byHand = match_.humanSetsPower();
    if (!byHand && !humanAims()) {
        return;
    }
    const std::string now = byHand ? narration::power(match_.aimPower, match_.language) : aim();
    if (std::exchange(toldAim_, now) != now) {
        say({now}, true);
    }
}

void Narrator::tellSoon() {
    if (!std::exchange(isDue_, true)) {
        queue_.post(lifetime_.whileAlive([this] { tell(); }));
    }
}

void Narrator::tell() {
    isDue_ = false;
    const auto rest = std::exchange(rest_, std::nullopt);
    auto power = std::exchange(power_, std::nullopt);
    const std::string message = std::exchange(message_, {});
    const bool endIsOver = std::exchange(endIsOver_, false);
    const bool aimBegins = std::exchange(aimBegins_, false) && humanAims();
    const bool powerBegins = std::exchange(aimIsLocked_, false);
    const bool aimIsLocked = powerBegins && toldAim_ != aim();
    if (aimBegins || aimIsLocked) {
        toldAim_ = aim();
    }
    const AppLanguage language = match_.language;
    const std::string lastAim = toldAim_;
    if (powerBegins &&
        match_.humanSetsPower()) { // who changes it has to know where it is: it may be the last end's
        power = match_.aimPower;
        toldAim_ = narration::power(*power, language);
    }
    // The message last: it says what to do next, and most do not end as a sentence does.
    say({rest ? result(*rest) : "", aimIsLocked || aimBegins ? lastAim : "", aimBegins ? jack() : "",
         power ? narration::power(*power, language) : "",
         endIsOver ? narration::score({match_.redScore, match_.blueScore}, language) : "",
         spokenMessage(wording_(message), language)},
        rest.has_value());
}

void Narrator::sayEverything() {
    if (options_.isOn(Option::speech)) {
        say({narration::everything({.position = match_.thrownBalls(),
                                    .thrower = match_.currentTurn,
                                    .left = {match_.redBallsLeft, match_.blueBallsLeft},
                                    .score = {match_.redScore, match_.blueScore}},
                                   match_.language)},
            true);
    }
}

void Narrator::say(const std::vector<std::string>& sentences, bool urgent) {
    const std::string text = narration::joined(sentences);
    if (!text.empty() && options_.isOn(Option::speech)) {
        voice_.say(text, rawValue(match_.language), urgent);
    }
}

std::string Narrator::result(const Rest& rest) const {
    const AppLanguage language = match_.language;
    if (!rest.position.jack) {
        return {}; // it does not count, as the message says
    }
    if (!rest.ball) {
        return narration::jack(rest.position, match_.currentTurn, language);
    }
    const BallsLeft left{match_.redBallsLeft, match_.blueBallsLeft};
    return narration::joined({narration::atRest(*rest.ball, *rest.position.jack, language),
                              narration::closest(rest.position, language),
                              isEndOver(match_) ? "" : narration::ballsLeft(left, language)});
}

std::string Narrator::aim() const {
    const AppLanguage language = match_.language;
    const std::string angle = narration::angle(match_.aimAngle, decimals(), language);
    return aim::mayRaise(match_.playerClass)
               ? narration::joined({angle, narration::elevation(match_.aimPitch, decimals(), language)})
               : angle;
}

std::string Narrator::jack() const {
    if (match_.phase == GamePhase::throwingJack) {
        return {}; // it is the ball that waits
    }
    return narration::jack(match_.thrownBalls(), match_.currentTurn, match_.language);
}

int Narrator::decimals() const {
    return options_.isOn(Option::fineAim) ? 1 : 0; // its steps are half a degree
}

} // namespace vorbel
