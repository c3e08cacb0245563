#include "app/session/Log.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace vorbel {

class LogTest : public testing::Test {
protected:
    QTemporaryDir place;
    const std::filesystem::path folder = std::filesystem::path(place.path().toStdString()) / "state";

    static std::string content(const std::filesystem::path& file) {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }
    [[nodiscard]] std::string noted() const { return content(Log::fileIn(folder)); }
};

TEST_F(LogTest, WhereNothingGoesWrongThereIsNoLog) {
    const Log log(folder, false);
    qDebug("about to begin");
    qInfo("has begun");
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(LogTest, WarningsAndWorseAreNotedALineEach) {
    const Log log(folder, false);
    qWarning("a font is missing");
    testing::internal::CaptureStderr();
    qCritical("there is no arena");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "vorbel: there is no arena\n");
    const std::string text = noted();
    EXPECT_EQ(std::ranges::count(text, '\n'), 2);
    EXPECT_LT(text.find("a font is missing\n"), text.find("there is no arena\n"));
}

TEST_F(LogTest, OnlyOnRequestTheConsoleHearsEverything) {
    for (const bool verbose : {false, true}) {
        const Log log(folder, verbose);
        testing::internal::CaptureStderr();
        qWarning("a font is missing");
        qInfo("has begun");
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  verbose ? "vorbel: a font is missing\nvorbel: has begun\n" : "");
    }
}

TEST_F(LogTest, TheSameAgainAndAgainIsNotedOnce) {
    const Log log(folder, false);
    for (int i = 0; i < 1000; ++i) {
        qWarning("no frame");
    }
    const std::string text = noted();
    EXPECT_EQ(std::ranges::count(text, '\n'), 1);
}

TEST_F(LogTest, ItNeverGrowsBeyondItsLimitAndKeepsTheNewest) {
    const Log log(folder, false);
    for (int i = 0; i < 5000; ++i) {
        qWarning("warning number %d of many", i);
    }
    EXPECT_LE(noted().size(), Log::sizeLimit);
    EXPECT_LE(content(folder / "log.old").size(), Log::sizeLimit);
    EXPECT_GT(content(folder / "log.old").size(), Log::sizeLimit / 2);
    EXPECT_NE(noted().find("warning number 4999"), std::string::npos);
}

TEST_F(LogTest, AFolderThatCannotBeMadeIsDoneWithout) {
    const Log log("/proc/nowhere", false);
    qWarning("a font is missing");
    EXPECT_FALSE(std::filesystem::exists("/proc/nowhere"));
}

} // namespace vorbel
