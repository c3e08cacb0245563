// How the program comes to its end, and what it knows of the end before.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"

#include "platform/store/SettingsDefaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace vorbel {

namespace {

const QColor barGround(22, 22, 31); // of the menu bar, and of a notice, which covers all

class SessionTest : public testing::Test {
protected:
    QTemporaryDir place;

    [[nodiscard]] Program::Environment environment() const {
        return {{QStringLiteral("XDG_STATE_HOME"), place.path()},
                {QStringLiteral("XDG_CONFIG_HOME"), place.path()}};
    }
    [[nodiscard]] QString log() const {
        QFile file(place.filePath(QStringLiteral("vorbel/log")));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    static bool tellsOfABadEnd() {
        return showsBarAnd([](bool notice) { return notice; });
    }
    static bool showsTheMenu() {
        return showsBarAnd([](bool notice) { return !notice; });
    }

private:
    static bool showsBarAnd(bool (*wanted)(bool notice)) {
        return waitUntil([wanted] {
            const QImage seen = Desktop::instance().picture();
            return alike(seen.pixelColor(300, 15), barGround) &&
                   wanted(alike(seen.pixelColor(60, 300), barGround));
        });
    }
};

} // namespace

TEST_F(SessionTest, TheEndOfTheDesktopsSessionIsAGoodEnd) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        Program game({}, environment());
        ASSERT_TRUE(Desktop::instance().focusGame());
        game.signal(signal);
        EXPECT_EQ(game.status(), 0) << "signal " << signal;
    }
    Program next({}, environment());
    ASSERT_TRUE(Desktop::instance().focusGame());
    EXPECT_TRUE(showsTheMenu());
    EXPECT_EQ(log(), QString());
}

TEST_F(SessionTest, ABadEndIsToldAtTheNextStartOnceAndCostsNoSettings) {
    SettingsDefaults(place.filePath(QStringLiteral("vorbel")).toStdString())
        .setInteger("boccia_gamesPlayed", 7);
    {
        Program game({}, environment());
        ASSERT_TRUE(Desktop::instance().focusGame());
        game.signal(SIGSEGV);
        EXPECT_EQ(game.status(), std::nullopt);
        EXPECT_TRUE(log().contains(QStringLiteral("crashed, signal 11"))) << qUtf8Printable(log());
    }
    for (const bool told : {true, false}) {
        Program game({}, environment());
        ASSERT_TRUE(Desktop::instance().focusGame());
        if (told) {
            EXPECT_TRUE(tellsOfABadEnd());
            Desktop::instance().press(QStringLiteral("Return"));
        }
        EXPECT_TRUE(showsTheMenu());
        game.signal(SIGTERM);
        EXPECT_EQ(game.status(), 0);
    }
    const SettingsDefaults stored(place.filePath(QStringLiteral("vorbel")).toStdString());
    EXPECT_EQ(stored.integer("boccia_gamesPlayed"), 7);
}

TEST_F(SessionTest, OnlyOnRequestTheConsoleHearsMoreThanWhatIsGivenUp) {
    auto variables = environment();
    variables[QStringLiteral("QT_XCB_GL_INTEGRATION")] = QStringLiteral("none");
    variables[QStringLiteral("QT_LOGGING_RULES")] = QStringLiteral("qt.scenegraph.general=true");
    const QString givenUp = QStringLiteral("OpenGL 3.3");
    for (const QStringList& options : {QStringList{}, QStringList{QStringLiteral("--verbose")}}) {
        Program game(options, variables);
        ASSERT_TRUE(Desktop::instance().focusGame());
        EXPECT_TRUE(waitUntil([&] { return game.errors().contains(givenUp); }));
        EXPECT_EQ(game.errors().count(QLatin1Char('\n')) > 1, !options.isEmpty())
            << qUtf8Printable(game.errors());
    }
    EXPECT_EQ(log().count(QLatin1Char('\n')), 2) << "what was given up, by each game";
    EXPECT_EQ(log().count(givenUp), 2);
}

} // namespace vorbel
