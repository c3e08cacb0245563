#include "tests/scenario/Match.h"

namespace vorbel::test {

namespace {

class SpySound final : public SystemSound {
public:
    SpySound(std::string& log, float& pan) : log_(log), pan_(pan) {}
    void play() override { log_ += "play "; }
    void stop() override { log_ += "stop "; }
    void setVolume(float /*volume*/) override {}
    void setPan(float pan) override { pan_ = pan; }

private:
    std::string& log_;
    float& pan_;
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
    return std::make_unique<SpySound>(log[std::string(name)], pan[std::string(name)]);
}

std::unique_ptr<AudioPlayer> SpyAudio::player(const std::filesystem::path& /*file*/) {
    return filesAreBroken ? nullptr : std::make_unique<SpyPlayer>(crowd);
}

void MatchTest::humanAgainstHuman(AppLanguage language) {
    game.language = language;
    game.startAimingLoop();
}

void MatchTest::ballsLeft(int red, int blue) {
    state.redBallsLeft = red;
    state.blueBallsLeft = blue;
}

void MatchTest::score(int red, int blue) {
    state.redScore = red;
    state.blueScore = blue;
}

void MatchTest::playingWith(BallColor turn) {
    state.phase = GamePhase::playing;
    state.currentTurn = turn;
    state.aimState = AimState::idle;
    game.spawnBall();
}

void MatchTest::press(int times) {
    for (int i = 0; i < times; ++i) {
        game.processInput();
    }
}

void MatchTest::humanThrows(double angle, double power) {
    press(2);
    state.aimAngle = angle;
    state.aimPower = power;
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
