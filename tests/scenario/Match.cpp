#include "tests/scenario/Match.h"

namespace vorbel::test {

namespace {

class SpySound final : public SystemSound {
public:
    explicit SpySound(std::string& log) : log_(log) {}
    void play() override { log_ += "play "; }
    void stop() override { log_ += "stop "; }

private:
    std::string& log_;
};

class SpyPlayer final : public AudioPlayer {
public:
    explicit SpyPlayer(std::string& log) : log_(log) {}
    void setLoopCount(int count) override { log_ += "loop " + std::to_string(count) + " "; }
    void setVolume(float volume) override { log_ += "volume " + std::to_string(volume).substr(0, 3) + " "; }
    void play() override { log_ += "play "; }

private:
    std::string& log_;
};

} // namespace

std::unique_ptr<SystemSound> SpyAudio::systemSound(std::string_view name) {
    return std::make_unique<SpySound>(log[std::string(name)]);
}

std::unique_ptr<AudioPlayer> SpyAudio::player(const std::filesystem::path& /*file*/) {
    return filesAreBroken ? nullptr : std::make_unique<SpyPlayer>(crowd);
}

void MatchTest::humanAgainstHuman(AppLanguage language) {
    game.language = language;
    game.startAimingLoop();
}

void MatchTest::emptyCourt() {
    game.clearField();
    game.activeBallNode = nullptr;
}

Node::Ptr MatchTest::place(BallColor color, double x, double z) {
    Node::Ptr ball = makeBall(color, {x, restingHeight, z}, PhysicsBody::Type::dynamic);
    game.scene.root->addChild(ball);
    return ball;
}

Node::Ptr MatchTest::jackAt(double x, double z) {
    return place(BallColor::jack, x, z);
}
Node::Ptr MatchTest::redAt(double x, double z) {
    return place(BallColor::red, x, z);
}
Node::Ptr MatchTest::blueAt(double x, double z) {
    return place(BallColor::blue, x, z);
}

void MatchTest::ballsLeft(int red, int blue) {
    game.redBallsLeft = red;
    game.blueBallsLeft = blue;
}

void MatchTest::score(int red, int blue) {
    game.redScore = red;
    game.blueScore = blue;
}

void MatchTest::playingWith(BallColor turn) {
    game.phase = GamePhase::playing;
    game.currentTurn = turn;
    game.aimState = AimState::idle;
    game.spawnBall();
}

void MatchTest::press(int times) {
    for (int i = 0; i < times; ++i) {
        game.processInput();
    }
}

void MatchTest::humanThrows(double angle, double power) {
    press(2);
    game.aimAngle = angle;
    game.aimPower = power;
    press();
}

int MatchTest::settled() {
    constexpr int longestThrow = 150;
    int count = 0;
    while (game.aimState == AimState::thrown && count <= longestThrow) {
        ticks(1);
        ++count;
    }
    return count;
}

std::vector<Node::Ptr> MatchTest::balls(std::string_view name) const {
    std::vector<Node::Ptr> found;
    for (const Node::Ptr& node : game.scene.root->children()) {
        if (node->name == name) {
            found.push_back(node);
        }
    }
    return found;
}

} // namespace vorbel::test
