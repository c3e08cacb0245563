#include "app/Application.h"

#include "app/command_line/Demonstration.h"
#include "app/command_line/Output.h"
#include "app/command_line/Screenshot.h"
#include "app/command_line/Speed.h"
#include "app/controller/ControllerInput.h"
#include "app/diagnose/Diagnosis.h"
#include "app/diagnose/FrameTest.h"
#include "app/session/CrashNote.h"
#include "app/session/LastSession.h"
#include "app/session/Log.h"
#include "app/session/ScreenSaver.h"
#include "app/session/StateFolder.h"
#include "app/session/Termination.h"
#include "app/shell/NotificationCenter.h"
#include "app/shell/QtWindowFrame.h"
#include "app/shell/VorbelApp.h"
#include "app/speech/GameVoice.h"
#include "app/text/Fonts.h"
#include "app/window/ContentView.h"
#include "app/window/Display.h"
#include "app/window/HeldKeys.h"
#include "app/window/PointSize.h"
#include "platform/audio/SdlAudio.h"
#include "platform/controllers/SdlControllers.h"
#include "platform/runloop/QtMainQueue.h"
#include "platform/store/SettingsDefaults.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QScreen>
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

// The services that a game in a window needs, for the life of the window.
struct WindowPlatform {
    QtMainQueue queue{speedFromEnvironment()};
    SystemRandom random;
    Resources resources = Resources::forProgram(QCoreApplication::applicationFilePath().toStdString());
    SdlAudio audio{resources};
    SettingsDefaults defaults{SettingsDefaults::userFolder()};

    [[nodiscard]] Platform services() { return {queue, random, audio, resources}; }
};

QIcon windowIcon(const Resources& resources) {
    QIcon icon;
    for (const char* name : {"Icon16", "Icon22", "Icon32", "Icon48", "Icon64", "Icon128", "Icon256"}) {
        if (const auto file = resources.find(name, "png")) {
            icon.addFile(QString::fromStdString(file->string()));
        }
    }
    return icon;
}

// Sees each event before the event filters do, those of the toolkit included.
class KeyJudgingApplication final : public QGuiApplication {
public:
    using QGuiApplication::QGuiApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        return heldKeys_.holdBack(*event) || QGuiApplication::notify(receiver, event);
    }

private:
    HeldKeys heldKeys_;
};

void tellOfLastSession(const LastSession& last, VorbelApp& shell) {
    const std::filesystem::path log = Log::fileIn(userStateFolder());
    noteCrashesIn(log);
    if (last.endedBadly()) {
        qWarning("the last game did not come to its end");
        shell.tellOfBadEnd(QString::fromStdString(log.string()));
    }
}

int runWindow(QGuiApplication& application, const CommandLine& commandLine) {
    chooseGraphics();
    WindowPlatform platform;
    NotificationCenter notifications;
    const bool demonstrate = commandLine.action == CommandLine::Action::demonstrate;
    const bool diagnose = commandLine.action == CommandLine::Action::diagnose;
    MemoryDefaults guest = Demonstration::guestDefaults(platform.defaults);
    UserDefaults& player = platform.defaults;
    if (commandLine.resetOptions) {
        Options::reset(player);
    }
    if (commandLine.oneSwitch) {
        Options(player).set(Option::switchOn, 1);
    }
    ContentView view(platform.services(), demonstrate || diagnose ? guest : player);
    view.receiveNotifications(notifications);
    const GameVoice voice(view, platform.queue);
    setDefaultFont(view.settings()->selectedLanguage());
    VorbelApp shell(*view.settings(), notifications);
    QObject::connect(view.keyboard(), &Keyboard::exitFullScreenRequested, &shell,
                     [&shell] { shell.toggleFullScreenEmulation(true); });
    QGuiApplication::setWindowIcon(windowIcon(platform.resources));
    application.installEventFilter(view.oneSwitch()); // held keys were judged before
    QQmlApplicationEngine engine;
    const QSize smallest = smallestWindow(QGuiApplication::primaryScreen()->availableSize());
    engine.setInitialProperties({{QStringLiteral("view"), QVariant::fromValue(&view)},
                                 {QStringLiteral("shell"), QVariant::fromValue(&shell)},
                                 {QStringLiteral("width"), smallest.width()},
                                 {QStringLiteral("height"), smallest.height()},
                                 {QStringLiteral("minimumWidth"), smallest.width()},
                                 {QStringLiteral("minimumHeight"), smallest.height()}});
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Vorbel/qml/window/Main.qml")));
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (window == nullptr) {
        qCritical("the window could not be made; the log says why");
        return EXIT_FAILURE;
    }
    prepareWindow(*window);
    view.oneSwitch()->setWindow(*window);
    QtWindowFrame frame(*window);
    shell.setWindow(frame);
    QObject::connect(&frame, &QtWindowFrame::screenChanged, &shell, [&shell, window] {
        window->setMinimumSize(smallestWindow(window->screen()->availableSize()));
        shell.followScreen();
    });
    SdlControllers controllers;
    const ControllerInput controllerInput(controllers, view, platform.queue);
    QObject::connect(&controllerInput, &ControllerInput::keyPressed, window,
                     [window](Qt::Key key) { sendKey(*window, key); });
    const ScreenSaver screenSaver(view);
    // The toolkit leaves by exit() when the display goes, which is the end of the desktop's session and a good one.
    static std::optional<LastSession> lastSession;
    if (commandLine.action == CommandLine::Action::play) {
        tellOfLastSession(lastSession.emplace(userStateFolder()), shell);
    }
    view.appear();
    std::optional<Demonstration> demonstration;
    if (demonstrate) {
        demonstration.emplace(view, platform.queue, *window, commandLine.screenshotsFolder);
    }
    std::optional<FrameTest> frameTest;
    if (diagnose) {
        frameTest.emplace(view, *window);
    }
    const int status = application.exec();
    lastSession.reset();
    return status;
}

int runDiagnosis(QGuiApplication& application, const CommandLine& commandLine) {
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
    std::optional<DisplayGuard> guard(std::in_place);
    int programNameOnly = std::min(argc, 1);
    KeyJudgingApplication application(programNameOnly, argv);
    guard.reset();
    QGuiApplication::setApplicationName(QStringLiteral("vorbel"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("VORBEL"));
    QGuiApplication::setDesktopFileName(QStringLiteral("vorbel"));
    prepareFonts();
    const Termination termination;
    if (diagnose) {
        return runDiagnosis(application, commandLine);
    }
    if (commandLine.action == CommandLine::Action::takeScreenshot) {
        return takeScreenshot(commandLine.screenshot);
    }
    return runWindow(application, commandLine);
}

} // namespace vorbel
