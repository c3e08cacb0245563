// One end, from the jack to the score, as it is heard in five languages. What is said of the balls is compared
// with where they lie, by sums and sentences of this test's own.
#include "app/speech/Narrator.h"
#include "tests/unit/app/RecordingVoice.h"
#include "tests/unit/app/SpokenWords.h"
#include "tests/unit/app/ViewFixture.h"

#include <cmath>
#include <cstdio>

namespace vorbel {
namespace {

using test::SpokenWords;

struct Ball {
    std::string color; // "red", "blue" or "jack"
    double x;          // m
    double y;
    double z;
};

struct Heard {
    std::string text;
    std::vector<Ball> balls; // where they lay when it was said, the one that waits among them
    int redLeft;
    int blueLeft;
    BallColor turn;
};

// Writes down with each text where the balls lie.
class WitnessVoice final : public Voice {
public:
    explicit WitnessVoice(const GameLogic& match) : match_(match) {}

    void say(const std::string& text, std::string_view /*language*/, bool /*urgent*/) override {
        Heard one{text, {}, match_.redBallsLeft, match_.blueBallsLeft, match_.currentTurn};
        for (const Node::Ptr& node : match_.scene.root->children()) {
            if ((node->name == "red" || node->name == "blue" || node->name == "jack") &&
                node != match_.activeBallNode()) {
                one.balls.push_back({node->name, node->position().x, node->position().y, node->position().z});
            }
        }
        heard.push_back(one);
    }
    void hush() override {}

    std::vector<Heard> heard;

private:
    const GameLogic& match_;
};

double distance(const Ball& a, const Ball& b) {
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

// The words of what the test knows of the balls.
class Witness {
public:
    Witness(const SpokenWords& words, const Heard& heard) : words_(words), heard_(heard) {}

    [[nodiscard]] const Ball& jack() const { return *std::ranges::find(heard_.balls, "jack", &Ball::color); }
    [[nodiscard]] bool hasJack() const {
        return std::ranges::find(heard_.balls, "jack", &Ball::color) != heard_.balls.end();
    }

    // The last ball of a colour that came to the court: the one that was thrown.
    [[nodiscard]] std::string lastBallAtRest() const {
        const auto found = std::find_if(heard_.balls.rbegin(), heard_.balls.rend(),
                                        [](const Ball& ball) { return ball.color != "jack"; });
        if (std::abs(found->x) > 3) {
            return words_.out;
        }
        const double past = jack().z - found->z; // throws travel towards lower z
        const double right = found->x - jack().x;
        std::string said = std::round(past * 100) == 0
                               ? words_.level
                               : SpokenWords::with(past < 0 ? words_.shortOf : words_.beyond,
                                                   words_.fromJack(std::abs(past)));
        if (std::round(right * 100) != 0) {
            said += " " + SpokenWords::with(right < 0 ? words_.left : words_.right,
                                            words_.fromJack(std::abs(right)));
        }
        return said;
    }

    [[nodiscard]] std::string closest() const {
        const double red = closestOf("red");
        const double blue = closestOf("blue");
        const bool redLeads = red < blue;
        std::string said = SpokenWords::with(redLeads ? words_.closestRed : words_.closestBlue,
                                             words_.fromJack(std::min(red, blue)));
        if (std::max(red, blue) < nowhere) {
            said += " " + SpokenWords::with(redLeads ? words_.blue : words_.red,
                                            words_.fromJack(std::max(red, blue)));
        }
        return said;
    }

    [[nodiscard]] std::string jackAsSeen() const {
        const Ball eye{"", heard_.turn == BallColor::red ? -1.0 : 1.0, jack().y, -0.5};
        const std::string away = words_.inMetres(distance(eye, jack()));
        const double right = jack().x - eye.x;
        if (std::round(right * 10) == 0) {
            return SpokenWords::with(words_.jackAhead, away);
        }
        return SpokenWords::with(right < 0 ? words_.jackLeft : words_.jackRight, away,
                                 words_.inMetres(std::abs(right)));
    }

    [[nodiscard]] std::string ballsLeft() const {
        return SpokenWords::with(words_.ballsLeft, std::to_string(heard_.redLeft),
                                 std::to_string(heard_.blueLeft));
    }

private:
    static constexpr double nowhere = 1000; // m

    [[nodiscard]] double closestOf(const std::string& color) const {
        double least = nowhere;
        for (const Ball& ball : heard_.balls) {
            least = ball.color == color ? std::min(least, distance(ball, jack())) : least;
        }
        return least;
    }

    const SpokenWords& words_;
    const Heard& heard_;
};

class SpokenEndTest : public ViewTest, public testing::WithParamInterface<int> {
protected:
    void turnOn() {
        speak(*languageFromRawValue(words.code));
        view.options()->set(Option::speech, 1);
        view.options()->set(Option::powerPace, 0); // the player sets the power by keys
        settings.setBlueAIOn(true);
        appearAndHideMenu();
    }

    // Red's throw, by keys, towards the jack or, without one, down the court.
    void throwRed() {
        keyboard.pressAction();
        const auto jack = match.thrownBalls().jack;
        const double across = jack ? jack->x + 1 : 0.4; // m, from red's box
        const double along = jack ? -0.5 - jack->z : 5;
        const double angle = std::atan2(across, along);
        for (int press = 0; press < static_cast<int>(std::round(std::abs(angle) / 0.05)); ++press) {
            angle < 0 ? keyboard.pressLeft() : keyboard.pressRight();
            platform.queue.advance(0.1);
        }
        platform.queue.advance(1);
        keyboard.pressAction();
        const double power = powerForDistance(std::hypot(across, along)) - 10;
        for (int press = 0; press < static_cast<int>(power); ++press) {
            keyboard.pressUp();
        }
        platform.queue.advance(1);
        keyboard.pressAction();
    }

    void playTheEnd() {
        while (match.phase == GamePhase::throwingJack || match.phase == GamePhase::playing) {
            if (match.currentTurn == BallColor::red && match.aimState == AimState::idle) {
                throwRed();
            }
            platform.queue.advance(GameLogic::tickPeriod);
        }
        letQueueRun();
    }

    const SpokenWords& words = test::spokenWords[static_cast<std::size_t>(GetParam())];
    WitnessVoice voice{match};
    Narrator narrator{match, *view.options(), platform.queue, voice};
};

TEST_P(SpokenEndTest, EachSentenceIsTrueOfTheBalls) {
    turnOn();
    playTheEnd();
    int rests = 0;
    int looks = 0;
    int lastLeft = 12;
    for (const Heard& heard : voice.heard) {
        std::printf("%s: %s\n", words.code.c_str(), heard.text.c_str());
        const Witness witness(words, heard);
        const int left = heard.redLeft + heard.blueLeft;
        if (std::exchange(lastLeft, left) != left) { // a ball has come to rest
            ++rests;
            const std::string next = left > 0 ? witness.ballsLeft()
                                              : SpokenWords::with(words.score, std::to_string(match.redScore),
                                                                  std::to_string(match.blueScore));
            const std::string said = witness.lastBallAtRest() + " " + witness.closest() + " " + next + " ";
            EXPECT_TRUE(heard.text.starts_with(said)) << heard.text << "\n" << said;
        } else if (witness.hasJack() && heard.text.find(words.jackAhead.substr(
                                            0, words.jackAhead.find('#'))) != std::string::npos) {
            ++looks;
            EXPECT_NE(heard.text.find(witness.jackAsSeen()), std::string::npos) << heard.text << "\n"
                                                                                << witness.jackAsSeen();
        }
    }
    EXPECT_EQ(rests, 12);
    EXPECT_GE(looks, 7); // after the jack's throw, and before each of red's six
    EXPECT_GT(match.redScore + match.blueScore, 0);
}

std::string codeOf(const testing::TestParamInfo<int>& end) {
    return test::spokenWords[static_cast<std::size_t>(end.param)].code;
}

INSTANTIATE_TEST_SUITE_P(InFiveLanguages, SpokenEndTest, testing::Range(0, 5), codeOf);

} // namespace
} // namespace vorbel
