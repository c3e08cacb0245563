// --diagnose on machines that lack something.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

QString page(const Program::Environment& environment = {}) {
    Program program({QStringLiteral("--diagnose")}, environment);
    EXPECT_EQ(program.status(60'000), 0) << qUtf8Printable(program.errors());
    return program.output();
}

// What the page says of it; fails when it says nothing.
std::string fact(const QString& page, const QString& name) {
    const QRegularExpression line(QStringLiteral("^%1: (.+)$").arg(name),
                                  QRegularExpression::MultilineOption);
    const auto found = line.match(page);
    EXPECT_TRUE(found.hasMatch()) << qUtf8Printable(name) << " is not told in\n" << qUtf8Printable(page);
    return found.captured(1).toStdString();
}

const QString frames = QStringLiteral("Frames a second");

} // namespace

TEST(DiagnoseTest, ItTellsOfEverythingThatAReportNeeds) {
    const QString told = page();
    for (const char* name : {"VORBEL", "Toolkit", "System", "Desktop", "Driver", "Screen", "Sound", "Speech",
                             "Controllers", "Settings", "State", "Log", "Resources"}) {
        EXPECT_FALSE(fact(told, QString::fromLatin1(name)).empty());
    }
    EXPECT_EQ(told.count(QStringLiteral("Noto Sans")), 20) << "a font for each language";
    EXPECT_TRUE(QString::fromStdString(fact(told, QStringLiteral("Screen")))
                    .startsWith(QStringLiteral("2560 × 1600")));
    EXPECT_GT(QString::fromStdString(fact(told, frames)).section(QLatin1Char(' '), 0, 0).toDouble(), 0);
}

TEST(DiagnoseTest, ItNamesNobody) {
    const QString told = page({{QStringLiteral("XDG_CONFIG_HOME"), QString()}});
    EXPECT_FALSE(told.contains(QDir::homePath())) << qUtf8Printable(told);
    EXPECT_EQ(fact(told, QStringLiteral("Settings")).substr(0, 17), "~/.config/vorbel,");
}

TEST(DiagnoseTest, WithoutADisplayItSaysSoAndTellsTheRest) {
    const QString told =
        page({{QStringLiteral("DISPLAY"), QString()}, {QStringLiteral("QT_QPA_PLATFORM"), QString()}});
    EXPECT_EQ(fact(told, QStringLiteral("Screens")), "no display can be reached");
    EXPECT_EQ(fact(told, QStringLiteral("Driver")), "none");
    EXPECT_EQ(fact(told, frames), "not measured, no display can be reached");
    EXPECT_EQ(told.count(QStringLiteral("Noto Sans")), 20);
}

TEST(DiagnoseTest, WithoutASoundDeviceItSaysSo) {
    const std::string sound = fact(page({{QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("none-such")}}),
                                   QStringLiteral("Sound"));
    EXPECT_TRUE(sound.ends_with("no device is reached")) << sound;
}

TEST(DiagnoseTest, WithoutASpeechServiceItSaysSo) {
    const std::string speech =
        fact(page({{QStringLiteral("SPEECHD_ADDRESS"), QStringLiteral("unix_socket:/nowhere")}}),
             QStringLiteral("Speech"));
    EXPECT_TRUE(speech.starts_with("the service does not run")) << speech;
}

TEST(DiagnoseTest, WithoutOpenGlItSaysSoAndWhatWasMeasured) {
    const QString told = page({{QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none")}});
    EXPECT_EQ(fact(told, QStringLiteral("Driver")), "none");
    EXPECT_TRUE(fact(told, frames).ends_with("without the arena"));
    const std::string old = fact(page({{QStringLiteral("MESA_GL_VERSION_OVERRIDE"), QStringLiteral("2.1")}}),
                                 QStringLiteral("Driver"));
    EXPECT_NE(old.find("too old"), std::string::npos) << old;
}

TEST(DiagnoseTest, ItSaysWhichFoldersCannotBeWrittenAndWhetherResourcesAreThere) {
    const QString told = page({{QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/proc/nowhere")},
                               {QStringLiteral("VORBEL_RESOURCES"), QStringLiteral("/nowhere")}});
    EXPECT_EQ(fact(told, QStringLiteral("Settings")),
              "/proc/nowhere/vorbel, not there yet, can be read, cannot be written");
    EXPECT_EQ(fact(told, QStringLiteral("Resources")), "not found");
}

} // namespace vorbel
