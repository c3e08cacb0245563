#include "tests/fuzz/RandomPlayer.h"

#include "scene/Ball.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace vorbel::test {

namespace {

template <typename Enumeration, std::size_t count>
Enumeration next(const std::array<Enumeration, count>& all, Enumeration current) {
    return all[(static_cast<std::size_t>(current) + 1) % count];
}

bool ballsLeftInRange(int left) {
    return left >= 0 && left <= ballsPerSide;
}

} // namespace

RandomPlayer::RandomPlayer(std::uint64_t seed)
    : platform_(seed),
      random_({seed, 0}),
      game_({platform_.queue, random_, platform_.audio, platform_.resources}) {
    phasesSeen_.insert(game_.phase);
    phaseWatch_ = game_.phase.onWillChange([this](GamePhase phase) {
        phasesSeen_.insert(phase);
        ++progress_;
    });
    throwWatch_ = game_.aimState.onWillChange(
        [this](AimState state) { progress_ += state == AimState::thrown ? 1 : 0; });
    game_.startAimingLoop();
}

void RandomPlayer::perform(Action action) {
    switch (action) {
    case Action::space:
        return game_.processInput();
    case Action::left:
        return game_.moveAimLeft();
    case Action::right:
        return game_.moveAimRight();
    case Action::up:
        return game_.moveAimUp();
    case Action::down:
        return game_.moveAimDown();
    case Action::toggleRedComputer:
        game_.redIsAI = !game_.redIsAI;
        return;
    case Action::toggleBlueComputer:
        game_.blueIsAI = !game_.blueIsAI;
        return;
    case Action::nextDifficulty:
        game_.aiDifficulty = next(allDifficulties, game_.aiDifficulty.get());
        return;
    case Action::nextClass:
        game_.playerClass = next(allBocciaClasses, game_.playerClass.get());
        return;
    case Action::nextLanguage:
        game_.language = next(allLanguages, game_.language.get());
        return;
    case Action::newMatch:
        return game_.resetMatch();
    case Action::newTournament:
        return game_.startTournament(Country::thailand);
    case Action::takeBack:
        return game_.takeBack();
    case Action::turnFinely:
        return game_.turnAim(-aim::fineStep);
    case Action::morePower:
        return game_.changePower(aim::powerByHandLeap);
    case Action::otherPace:
        return game_.setPowerPace(game_.powerPace() > 0 ? game_.powerPace() - 0.25 : 1);
    case Action::pauseAndResume:
        game_.pause();
        return game_.resume();
    }
}

int RandomPlayer::takeProgress() {
    return std::exchange(progress_, 0);
}

std::string RandomPlayer::brokenBall() const {
    int colourBalls = 0;
    int jacks = 0;
    for (const Node::Ptr& node : game_.scene.root->children()) {
        if (!isBall(*node)) {
            continue;
        }
        (node->name == nodeName(BallColor::jack) ? jacks : colourBalls) += 1;
        const Vec3& position = node->position();
        if (!std::isfinite(position.x) || !std::isfinite(position.y) || !std::isfinite(position.z)) {
            return "a ball is nowhere";
        }
        if (position.y < 0) {
            return "a ball has sunk into the floor";
        }
    }
    if (jacks != 1) {
        return std::to_string(jacks) + " jacks";
    }
    return colourBalls > 2 * ballsPerSide ? "more balls than were thrown" : "";
}

std::string RandomPlayer::brokenInvariant() const {
    int red = 0;
    int blue = 0;
    for (const EndResult& end : game_.endHistory.get()) {
        red += end.red;
        blue += end.blue;
    }
    if (red != game_.redScore || blue != game_.blueScore) {
        return "the history does not add up to the score";
    }
    if (!ballsLeftInRange(game_.redBallsLeft) || !ballsLeftInRange(game_.blueBallsLeft)) {
        return "balls left out of range";
    }
    if (std::abs(game_.aimAngle) > std::numbers::pi / 4 || game_.aimPitch < 0 ||
        game_.aimPitch > std::numbers::pi / 3) {
        return "aim out of range";
    }
    if (game_.aimPower > 101 || game_.aimPower < 9) {
        return "power out of range";
    }
    if (game_.currentTurn == BallColor::jack) {
        return "the jack's turn";
    }
    if (game_.message.get().empty() || game_.message.get().find("%@") != std::string::npos) {
        return "a message without its words";
    }
    return brokenBall();
}

} // namespace vorbel::test
