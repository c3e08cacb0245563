// Everything that a player can do, at random and faster than any player: clicks, keys, resizes, full screen.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>

namespace vorbel {

namespace {

int setting(const char* variable, int usual) {
    const char* value = std::getenv(variable);
    return value == nullptr ? usual : std::atoi(value);
}

// The same actions for the same seed; when they arrive is up to the machine.
class Storm {
public:
    explicit Storm(int seed) : random_(static_cast<unsigned>(seed)) {}

    // A gust of ten actions, as one command of the tool.
    QStringList gust() {
        QStringList actions;
        for (int i = 0; i < 10; ++i) {
            const int kind = upTo(10);
            actions += kind < 6 ? click() : kind < 9 ? key() : resize();
        }
        return actions;
    }

private:
    int upTo(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

    QStringList click() {
        constexpr const char* buttons[] = {"1", "1", "1", "1", "3", "4", "5"}; // 4 and 5 turn the wheel
        return {QStringLiteral("mousemove"), QString::number(upTo(width_)), QString::number(upTo(height_)),
                QStringLiteral("click"), QString::fromLatin1(buttons[upTo(7)])};
    }
    QStringList key() {
        constexpr const char* keys[] = {"space",  "Return", "Tab",    "shift+Tab", "Left", "Right",
                                        "Up",     "Down",   "Escape", "F10",       "F11",  "ctrl+n",
                                        "Return", "Tab",    "End",    "Page_Down"};
        return {QStringLiteral("key"), QString::fromLatin1(keys[upTo(16)])};
    }
    QStringList resize() {
        width_ = 1200 + upTo(500);
        height_ = 800 + upTo(300);
        return {QStringLiteral("search"),   QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                QStringLiteral("^VORBEL$"), QStringLiteral("windowsize"),    QString::number(width_),
                QString::number(height_)};
    }

    std::mt19937 random_;
    int width_ = 1200; // of the window, in pixels
    int height_ = 800;
};

// A browser that opens nothing.
class NoBrowser {
public:
    NoBrowser() {
        QFile browser(folder_.filePath(QStringLiteral("xdg-open")));
        if (browser.open(QIODevice::WriteOnly)) {
            browser.write("#!/bin/sh\n");
            browser.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
    }
    [[nodiscard]] QString path() const {
        return folder_.path() + QLatin1Char(':') + qEnvironmentVariable("PATH");
    }

private:
    QTemporaryDir folder_;
};

} // namespace

// VORBEL_STORM_SECONDS of it, of VORBEL_STORM_SEED. The exit button may be hit: then the game starts again.
TEST(StormTest, NeitherACrashNorAComplaintInAStormOfInput) {
    const int seconds = setting("VORBEL_STORM_SECONDS", 10);
    const int seed = setting("VORBEL_STORM_SEED", 1);
    Storm storm(seed);
    const NoBrowser browser;
    const Program::Environment environment{{QStringLiteral("PATH"), browser.path()}};
    std::optional<Program> game(std::in_place, QStringList(), environment);
    ASSERT_TRUE(Desktop::instance().focusGame()) << qUtf8Printable(game->errors());
    QElapsedTimer clock;
    clock.start();
    int gusts = 0;
    while (clock.elapsed() < seconds * 1000LL) {
        QProcess::execute(QStringLiteral("xdotool"), storm.gust());
        ++gusts;
        ASSERT_EQ(qUtf8Printable(game->errors()), std::string()) << "seed " << seed << ", gust " << gusts;
        if (!game->isRunning()) {
            ASSERT_EQ(game->status(), 0) << "seed " << seed << ", gust " << gusts;
            game.emplace(QStringList(), environment);
            ASSERT_TRUE(Desktop::instance().focusGame());
        }
    }
    std::cout << gusts << " gusts, " << game->residentMegabytes() << " MB at the end\n";
}

} // namespace vorbel
