// How the program starts, and what it says when it cannot.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"

#include "platform/store/SettingsDefaults.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

bool shows(QPoint place, const QColor& color) {
    return waitUntil([&] { return alike(Desktop::instance().picture().pixelColor(place), color); });
}

// From the main menu into a match, and its first key: the game goes on if its display does.
void expectToPlay() {
    Desktop::instance().startMatch();
    EXPECT_TRUE(shows(redBorder, red)) << "the match begins";
    EXPECT_TRUE(Desktop::instance().pressUntilChanged(QStringLiteral("space"), messageLine)) << "aiming";
}

int lines(const QString& text) {
    return static_cast<int>(text.count(QLatin1Char('\n')));
}

} // namespace

TEST(StartTest, HelpAndVersionAnswerWithoutADisplay) {
    for (const char* option : {"--help", "--version"}) {
        Program program({QString::fromLatin1(option)}, {{QStringLiteral("DISPLAY"), QString()}});
        ASSERT_EQ(program.status(), 0);
        EXPECT_FALSE(program.output().isEmpty());
        EXPECT_EQ(program.errors(), QString());
    }
}

TEST(StartTest, WhatCannotBeWrittenIsSaidAndStatus1) {
    for (const char* option : {"--help", "--version", "--diagnose"}) {
        QProcess program;
        program.setStandardOutputFile(QStringLiteral("/dev/full"));
        program.start(QStringLiteral(VORBEL_PROGRAM), {QString::fromLatin1(option)});
        ASSERT_TRUE(program.waitForFinished(patience)) << option;
        EXPECT_EQ(program.exitCode(), 1) << option;
        EXPECT_TRUE(program.readAllStandardError().endsWith("vorbel: cannot write the output\n")) << option;
    }
}

TEST(StartTest, AnUnknownOptionIsOneClearLineAndStatus2) {
    Program program({QStringLiteral("--bogus")});
    EXPECT_EQ(program.status(), 2);
    EXPECT_EQ(lines(program.errors()), 1) << qUtf8Printable(program.errors());
    EXPECT_TRUE(program.errors().contains(QStringLiteral("'--bogus'")));
}

TEST(StartTest, WithoutADisplayItSaysSoInOneLineAndStatus1) {
    for (const QString& display : {QString(), QStringLiteral(":9999")}) {
        Program program(
            {}, {{QStringLiteral("DISPLAY"), display}, {QStringLiteral("WAYLAND_DISPLAY"), QString()}});
        EXPECT_EQ(program.status(), 1);
        EXPECT_EQ(lines(program.errors()), 1) << qUtf8Printable(program.errors());
        EXPECT_TRUE(program.errors().contains(QStringLiteral("no display")));
    }
}

TEST(StartTest, WhatElseTheToolkitGivesUpForIsSaidInOneLineAndStatus1) {
    Program program({}, {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none-such")}});
    EXPECT_EQ(program.status(), 1);
    EXPECT_EQ(lines(program.errors()), 1) << qUtf8Printable(program.errors());
    EXPECT_TRUE(program.errors().contains(QStringLiteral("none-such"))) << qUtf8Printable(program.errors());
    EXPECT_FALSE(program.errors().contains(QStringLiteral("no display")));
}

TEST(StartTest, ALanguageOfAnotherScriptIsLeftWithoutAComplaint) {
    const QTemporaryDir settings;
    SettingsDefaults(std::filesystem::path(settings.path().toStdString()) / "vorbel")
        .setText("boccia_language", "hi");
    Program game({}, {{QStringLiteral("XDG_CONFIG_HOME"), settings.path()}});
    const Desktop& desktop = Desktop::instance();
    ASSERT_TRUE(desktop.focusGame()) << qUtf8Printable(game.errors());
    constexpr QRect firstButton(470, 490, 260, 55);
    ASSERT_TRUE(
        waitUntil([&] { return alike(desktop.picture().pixelColor(300, 15), QColor(0x16, 0x16, 0x1f)); }));
    desktop.press(QStringLiteral("shift+Tab"));
    desktop.press(QStringLiteral("shift+Tab")); // from the first button over the switch to the last language
    EXPECT_TRUE(desktop.pressUntilChanged(QStringLiteral("Return"), firstButton));
    EXPECT_EQ(game.errors(), QString());
}

TEST(StartTest, AScreenshotIsAPictureOfTheArena) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("arena.png"));
    Program program({QStringLiteral("--screenshot"), file});
    EXPECT_EQ(program.status(), 0) << qUtf8Printable(program.errors());
    const QImage picture(file);
    EXPECT_EQ(picture.size(), QSize(1200, 800));
    EXPECT_TRUE(alike(picture.pixelColor(court), courtGreen));
}

TEST(StartTest, AScreenshotThatCannotBeWrittenIsOneClearLineAndStatus1) {
    Program program({QStringLiteral("--screenshot"), QStringLiteral("/nowhere/arena.png")});
    EXPECT_EQ(program.status(), 1);
    EXPECT_EQ(lines(program.errors()), 1) << qUtf8Printable(program.errors());
}

TEST(StartTest, TheGameGoesOnWithoutResourcesSoundAndSettings) {
    for (const Program::Environment& environment :
         {Program::Environment{{QStringLiteral("VORBEL_RESOURCES"), QStringLiteral("/nowhere")}},
          Program::Environment{{QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("none-such")}},
          Program::Environment{{QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/proc/nowhere")}}}) {
        Program game({}, environment);
        ASSERT_TRUE(Desktop::instance().focusGame()) << qUtf8Printable(game.errors());
        expectToPlay();
        EXPECT_TRUE(shows(court, courtGreen));
        EXPECT_TRUE(game.isRunning());
    }
}

TEST(StartTest, WithoutOpenGlItSaysSoInOneLineAndTheMatchGoesOn) {
    for (const auto& environment :
         {Program::Environment{{QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none")}},
          Program::Environment{{QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software")}},
          Program::Environment{{QStringLiteral("MESA_GL_VERSION_OVERRIDE"), QStringLiteral("2.1")}}}) {
        Program game({}, environment);
        ASSERT_TRUE(Desktop::instance().focusGame());
        EXPECT_TRUE(waitUntil([&game] { return game.errors().contains(QStringLiteral("OpenGL")); }));
        expectToPlay();
        EXPECT_TRUE(game.isRunning());
        EXPECT_EQ(lines(game.errors()), 1) << qUtf8Printable(game.errors());
    }
}

TEST(StartTest, TheDemonstrationLeavesThePlayersCareerAlone) {
    const QTemporaryDir settings;
    SettingsDefaults stored(settings.filePath(QStringLiteral("vorbel")).toStdString());
    stored.setText("boccia_language", "el");
    stored.setInteger("boccia_gamesPlayed", 7);
    stored.setBoolean("boccia_isRealAthlete", true);
    const auto files = [&settings] {
        return QDir(settings.filePath(QStringLiteral("vorbel"))).entryList(QDir::Files | QDir::Hidden);
    };
    const QStringList before = files();
    Program program({QStringLiteral("--demo")}, {{QStringLiteral("VORBEL_SPEED"), QStringLiteral("25")},
                                                 {QStringLiteral("XDG_CONFIG_HOME"), settings.path()}});
    EXPECT_EQ(program.status(120'000), 0) << qUtf8Printable(program.errors());
    EXPECT_EQ(stored.integer("boccia_gamesPlayed"), 7);
    EXPECT_EQ(stored.text("boccia_language"), "el");
    EXPECT_EQ(files(), before) << "neither experience nor a diary";
}

TEST(StartTest, TheDemonstrationPlaysAMatchAndLeavesPicturesOfItsStages) {
    const QTemporaryDir folder;
    Program program({QStringLiteral("--demo"), QStringLiteral("--screenshots"), folder.path()},
                    {{QStringLiteral("VORBEL_SPEED"), QStringLiteral("25")}});
    EXPECT_EQ(program.status(120'000), 0) << qUtf8Printable(program.errors());
    const QStringList pictures =
        QDir(folder.path()).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    ASSERT_GE(pictures.size(), 10) << qUtf8Printable(pictures.join(QLatin1Char(' ')));
    EXPECT_TRUE(pictures.first().contains(QStringLiteral("start")));
    EXPECT_TRUE(pictures.last().contains(QStringLiteral("result")));
    EXPECT_TRUE(alike(QImage(folder.filePath(pictures.first())).pixelColor(court), courtGreen));
}

} // namespace vorbel
