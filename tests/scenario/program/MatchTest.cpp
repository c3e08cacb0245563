// A whole match against the computer, played with the keyboard alone and by what the window shows.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"

#include <QDir>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

// Where a window of 1200 × 800 at the screen's corner shows what is looked at.
constexpr QPoint blueSwitch(1142, 69); // the half of its track that the knob leaves free when it is on

constexpr QPoint barStart(412, 696); // inside the power bar's fill whenever the bar is shown
constexpr QPoint barMiddle(570, 696);

constexpr int matchPatience = 300'000; // ms for a match in fast motion
const Program::Environment fastMotion{{QStringLiteral("VORBEL_SPEED"), QStringLiteral("8")}};

// The court is darker than the bar's fill, whatever the power.
bool isPowerColor(const QColor& color) {
    return color.hsvSaturation() > 230 && color.value() > 230;
}

// Plays red: aims a little to the right and locks the power when it has swung up.
class Player {
public:
    explicit Player(QString picturesFolder) : folder_(std::move(picturesFolder)) {
        QDir(folder_).removeRecursively(); // of an earlier run
        QDir().mkpath(folder_);
    }

    void look() { picture_ = desktop_.picture(); }
    [[nodiscard]] bool sees(QPoint place, const QColor& color) const {
        return alike(picture_.pixelColor(place), color);
    }
    [[nodiscard]] bool seesAnything() const {
        const QRgb corner = picture_.pixel(0, 0); // all black until the window has drawn itself
        return (corner & RGB_MASK) != 0;
    }
    [[nodiscard]] bool redOnTurn() const { return sees(redBorder, red); }
    [[nodiscard]] bool blueOnTurn() const { return sees(blueBorder, blue); }

    void press(const char* key, int times = 1) {
        for (int i = 0; i < times; ++i) {
            desktop_.press(QString::fromLatin1(key));
        }
    }

    void keepPicture(const QString& stage) {
        const QString number = QStringLiteral("%1").arg(++pictures_, 2, 10, QLatin1Char('0'));
        picture_.save(folder_ + QStringLiteral("/%1-%2.png").arg(number, stage));
    }

    // The jack: one picture of each stage.
    void throwJack() {
        keepPicture(QStringLiteral("start"));
        press("Up"); // too early: nothing to aim yet
        EXPECT_TRUE(pressSpace()) << "aiming";
        keepPicture(QStringLiteral("aiming"));
        press("Right", 5);
        EXPECT_TRUE(pressSpace()) << "power swings";
        keepPicture(QStringLiteral("power"));
        EXPECT_TRUE(waitUntil([this] { return powerIsUp(); })) << "power swings up";
        EXPECT_TRUE(pressSpace()) << "thrown";
        keepPicture(QStringLiteral("thrown"));
    }

    // Throws with Space whenever it is red's turn and goes on after an end. True when the match is over.
    [[nodiscard]] bool play(const Program& game) {
        look();
        if (redOnTurn()) {
            const bool powerSwings = seesPower(barStart);
            const bool powerIsEnough = seesPower(barMiddle);
            if (!powerSwings || powerIsEnough) {
                pressSpace();
            }
        } else if (!blueOnTurn()) {
            if (game.storedInteger(QStringLiteral("boccia_gamesPlayed")) > 0) {
                return true; // recorded before the window showed it
            }
            keepPicture(QStringLiteral("end-over"));
            pressSpace();
        }
        return false;
    }

private:
    [[nodiscard]] bool seesPower(QPoint powerBar) const {
        return isPowerColor(picture_.pixelColor(powerBar));
    }
    [[nodiscard]] bool powerIsUp() {
        look();
        return seesPower(barMiddle);
    }

    // Whether the window shows an effect: each stage of a throw has a message of its own.
    bool pressSpace() {
        const bool changed = desktop_.pressUntilChanged(QStringLiteral("space"), messageLine);
        look();
        return changed;
    }

    Desktop& desktop_ = Desktop::instance();
    QString folder_;
    QImage picture_;
    int pictures_ = 0;
};

} // namespace

TEST(MatchTest, AMatchAgainstTheComputerIsPlayedToItsResultWithTheKeyboardAlone) {
    Player player(QStringLiteral(VORBEL_PICTURES));
    Program game({}, fastMotion);
    ASSERT_TRUE(Desktop::instance().focusGame()) << qUtf8Printable(game.errors());
    const auto sees = [&player](QPoint place, const QColor& color) {
        return [&player, place, color] {
            player.look();
            return player.sees(place, color);
        };
    };
    const auto seesAnything = [&player] {
        player.look();
        return player.seesAnything();
    };
    ASSERT_TRUE(waitUntil(seesAnything));
    player.keepPicture(QStringLiteral("menu"));
    Desktop::instance().startMatch();
    ASSERT_TRUE(waitUntil(sees(court, courtGreen)));
    ASSERT_TRUE(player.redOnTurn());

    player.throwJack();
    player.press("Tab", 6); // red's switch, the four levels, blue's switch
    player.press("Return");
    EXPECT_TRUE(waitUntil(sees(blueSwitch, blue))) << "blue's switch";

    EXPECT_TRUE(waitUntil([&] { return player.play(game); }, matchPatience)) << "the match does not end";
    player.keepPicture(QStringLiteral("result"));
    EXPECT_EQ(game.storedInteger(QStringLiteral("boccia_gamesPlayed")), 1);

    player.press("Return"); // to the main menu
    Desktop::instance().startMatch();
    EXPECT_TRUE(waitUntil(sees(redBorder, red))) << "the next match begins with red's jack";
    EXPECT_TRUE(game.isRunning());
    EXPECT_EQ(game.errors(), QString());
}

} // namespace vorbel
