#include "app/Application.h"

#include "app/WindowedGame.h"
#include "app/command_line/Output.h"
#include "app/command_line/Screenshot.h"
#include "app/diagnose/Diagnosis.h"
#include "app/session/Log.h"
#include "app/session/StateFolder.h"
#include "app/session/Termination.h"
#include "app/text/Fonts.h"
#include "app/window/Display.h"
#include "app/window/HeldKeys.h"
#include "recording/RecordedFile.h"

#include <QGuiApplication>
#include <QtQml/qqmlextensionplugin.h>

#include <optional>

#ifdef __GLIBC__
#include <malloc.h>
#endif

Q_IMPORT_QML_PLUGIN(VorbelPlugin)

namespace vorbel {

namespace {

// Lets freed memory go back to the system. Left to itself the library keeps more and more once large blocks,
// such as decoded pictures, were freed, and it keeps a store for each thread. A lower limit would hold less
// still, but costs 30 ms at every start.
void configureMemory() {
#ifdef __GLIBC__
    constexpr int largeBlock = 1024 * 1024; // bytes
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_ARENA_MAX, 1);
#endif
}

// Sees each event before the event filters do, those of the toolkit included.
class KeyJudgingApplication final : public QGuiApplication {
public:
    using QGuiApplication::QGuiApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        return heldKeys_.holdBack(*event) || QGuiApplication::notify(receiver, event);
    }

    [[nodiscard]] HeldKeys& heldKeys() { return heldKeys_; }

private:
    HeldKeys heldKeys_;
};

// The game takes no text, so it needs no more than what the toolkit takes on X11 anyway. On a Wayland desktop without a
// keyboard, Qt 6.4 crashes in the code that would ask the desktop for an input method.
void doWithoutInputMethod() {
    if (qEnvironmentVariableIsEmpty("QT_IM_MODULE")) {
        qputenv("QT_IM_MODULE", "compose");
    }
}

// By which the desktop finds the game's entry in its menu. In a Flatpak the entry has the Flatpak's name.
QString entryName() {
    return qEnvironmentVariable("FLATPAK_ID", QStringLiteral("vorbel"));
}

int runWindow(KeyJudgingApplication& application, const CommandLine& commandLine) {
    chooseGraphics();
    return WindowedGame(application, application.heldKeys(), commandLine).run();
}

int runReplay(KeyJudgingApplication& application, const CommandLine& commandLine) {
    auto read = recording::recordingInFile(commandLine.replay);
    if (const auto* const problem = std::get_if<std::string>(&read)) {
        std::fprintf(stderr, "vorbel: %s: %s\n", commandLine.replay.c_str(), problem->c_str());
        return EXIT_FAILURE;
    }
    chooseGraphics();
    return WindowedGame(application, application.heldKeys(), commandLine,
                        std::get<recording::Recording>(std::move(read)))
        .run();
}

int runDiagnosis(KeyJudgingApplication& application, const CommandLine& commandLine) {
    const Resources resources = Resources::forProgram(QCoreApplication::applicationFilePath().toStdString());
    std::string page = diagnosis(resources, {SettingsDefaults::userFolder(), userStateFolder()});
    if (!hasDisplay()) {
        page += "Frames a second: not measured, no display can be reached\n";
    }
    const bool written = isWritten(page, stdout);
    return written && hasDisplay() ? runWindow(application, commandLine)
           : written               ? EXIT_SUCCESS
                                   : EXIT_FAILURE;
}

} // namespace

int runApplication(int argc, char** argv, const CommandLine& commandLine) {
    configureMemory();
    const Log log(userStateFolder(), commandLine.verbose);
    const bool diagnose = commandLine.action == CommandLine::Action::diagnose;
    if (diagnose) {
        allowNoDisplay();
    }
    doWithoutInputMethod();
    std::optional<DisplayGuard> guard(std::in_place);
    int programNameOnly = std::min(argc, 1);
    KeyJudgingApplication application(programNameOnly, argv);
    guard.reset();
    QGuiApplication::setApplicationName(QStringLiteral("vorbel"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("VORBEL"));
    QGuiApplication::setDesktopFileName(entryName());
    prepareFonts();
    const Termination termination;
    if (diagnose) {
        return runDiagnosis(application, commandLine);
    }
    if (commandLine.action == CommandLine::Action::takeScreenshot) {
        return takeScreenshot(commandLine.screenshot);
    }
    return commandLine.action == CommandLine::Action::replay ? runReplay(application, commandLine)
                                                             : runWindow(application, commandLine);
}

} // namespace vorbel
