#include "app/diagnose/Diagnosis.h"

#include "app/command_line/Version.h"
#include "app/diagnose/FontFacts.h"
#include "app/session/Log.h"
#include "platform/audio/SoundFacts.h"
#include "platform/controllers/ControllerNames.h"
#include "platform/render/DriverFacts.h"
#include "platform/resources/Resources.h"
#include "platform/speech/SpeechFacts.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <QTemporaryFile>

#include <thread>

namespace vorbel {

namespace {

namespace fs = std::filesystem;

// As the toolkit chooses, and after it nothing that can be seen.
QByteArray usualPlatforms() {
    return qgetenv("XDG_SESSION_TYPE") == "wayland" ? "wayland;xcb" : "xcb;wayland";
}

std::string withoutName(const fs::path& path) {
    const QString home = QDir::homePath();
    QString shown = QString::fromStdString(path.string());
    if (shown == home || shown.startsWith(home + QLatin1Char('/'))) {
        shown.replace(0, home.size(), QStringLiteral("~"));
    }
    return shown.toStdString();
}

// Tried, not guessed from permissions: a folder that is not there yet is made only when something is stored.
std::string accessTo(const fs::path& folder) {
    fs::path existing = folder;
    std::error_code error;
    while (!fs::exists(existing, error) && existing.has_relative_path()) {
        existing = existing.parent_path();
    }
    fs::directory_iterator reader(existing, error);
    QTemporaryFile file(QString::fromStdString((existing / ".vorbel-XXXXXX").string()));
    const std::string readable = error ? "cannot be read" : "can be read";
    return (existing == folder ? "" : "not there yet, ") + readable +
           (file.open() ? " and written" : ", cannot be written");
}

std::string line(const std::string& name, const std::string& fact) {
    return name + ": " + fact + "\n";
}

std::string environment(const char* variable) {
    const QByteArray value = qgetenv(variable);
    return value.isEmpty() ? "unknown" : value.toStdString();
}

std::string system() {
    return QSysInfo::prettyProductName().toStdString() + ", " + QSysInfo::kernelType().toStdString() + " " +
           QSysInfo::kernelVersion().toStdString() + ", " + QSysInfo::currentCpuArchitecture().toStdString() +
           ", " + std::to_string(std::thread::hardware_concurrency()) + " cores";
}

std::string screens() {
    if (!hasDisplay()) {
        return line("Screens", "no display can be reached");
    }
    std::string lines;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->geometry();
        lines += line("Screen", QStringLiteral("%1 × %2 points at %3,%4, scale %5, %6 Hz, %7 dots an inch")
                                    .arg(area.width())
                                    .arg(area.height())
                                    .arg(area.x())
                                    .arg(area.y())
                                    .arg(screen->devicePixelRatio())
                                    .arg(screen->refreshRate(), 0, 'f', 1)
                                    .arg(screen->logicalDotsPerInch(), 0, 'f', 0)
                                    .toStdString());
    }
    return lines;
}

std::string controllers() {
    std::string lines;
    for (const std::string& name : controllerNames()) {
        lines += line("Controller", name);
    }
    return lines.empty() ? line("Controllers", "none") : lines;
}

std::string foundResources(const Resources& resources) {
    const auto logo = resources.find("Logo", "png");
    return logo ? withoutName(logo->parent_path()) : "not found";
}

std::string logFacts(const fs::path& folder) {
    std::error_code error;
    const auto size = fs::file_size(Log::fileIn(folder), error);
    return withoutName(Log::fileIn(folder)) + ", " +
           (error ? "nothing noted" : std::to_string(size) + " bytes");
}

} // namespace

void allowNoDisplay() {
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    qputenv("QT_QPA_PLATFORM", (chosen.isEmpty() ? usualPlatforms() : chosen) + ";offscreen");
}

bool hasDisplay() {
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

std::string diagnosis(const Resources& resources, const Folders& folders) {
    return line("VORBEL", std::string(version())) +
           line("Toolkit", std::string("Qt ") + qVersion() +
                               ", made with " QT_VERSION_STR ", shown through " +
                               QGuiApplication::platformName().toStdString()) +
           line("System", system()) +
           line("Desktop",
                environment("XDG_CURRENT_DESKTOP") + ", session " + environment("XDG_SESSION_TYPE")) +
           line("Driver", driverFacts()) + screens() + line("Sound", soundFacts()) +
           line("Speech", speechFacts()) + controllers() +
           line("Settings", withoutName(folders.settings) + ", " + accessTo(folders.settings)) +
           line("State", withoutName(folders.state) + ", " + accessTo(folders.state)) +
           line("Log", logFacts(folders.state)) + line("Resources", foundResources(resources)) + "Fonts:\n" +
           fontFacts();
}

} // namespace vorbel
