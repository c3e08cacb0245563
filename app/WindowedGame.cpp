#include "app/WindowedGame.h"

#include "app/session/CrashNote.h"
#include "app/session/LastSession.h"
#include "app/session/Log.h"
#include "app/session/StateFolder.h"
#include "app/text/Fonts.h"
#include "app/window/Display.h"
#include "app/window/HeldKeys.h"
#include "app/window/PointSize.h"
#include "recording/RecordingFolder.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPointer>
#include <QQuickWindow>
#include <QScreen>
#include <QStandardPaths>

namespace vorbel {

namespace {

QIcon windowIcon(const Resources& resources) {
    QIcon icon;
    for (const char* name : {"Icon16", "Icon22", "Icon32", "Icon48", "Icon64", "Icon128", "Icon256"}) {
        if (const auto file = resources.find(name, "png")) {
            icon.addFile(QString::fromStdString(file->string()));
        }
    }
    return icon;
}

// Outlives the game: the toolkit leaves by exit() when the display goes, which is the end of the desktop's session and
// a good one.
std::optional<LastSession>& lastSession() {
    static std::optional<LastSession> last;
    return last;
}

// What of the keys the player has changed goes with the view.
std::function<bool(int)> movingKeys(ContentView& view) {
    return [view = QPointer(&view)](int key) {
        if (view.isNull() || view->oneSwitch()->isSwitch(key)) {
            return view.isNull() && HeldKeys::movesInMenus(key);
        }
        const GameControls& controls = *view->controls();
        const bool isOfMatch =
            view->openMenu().isHidden() && controls.of(GameControls::Device::keyboard).actionOf(key);
        return isOfMatch ? controls.repeats(key) : HeldKeys::movesInMenus(key);
    };
}

} // namespace

WindowedGame::WindowedGame(QGuiApplication& application, HeldKeys& heldKeys, const CommandLine& commandLine,
                           std::optional<recording::Recording> recorded)
    : application_(application),
      commandLine_(commandLine),
      resources_(Resources::forProgram(QCoreApplication::applicationFilePath().toStdString())),
      guest_(Demonstration::guestDefaults(defaults_)),
      replay_(recorded ? std::optional<recording::Replay>(std::move(*recorded)) : std::nullopt),
      view_({queue_, random_, audio_, resources_}, player(), matchServices()),
      voice_(view_, queue_),
      shell_(*view_.settings(), notifications_),
      controllerInput_(controllers_, view_, queue_) {
    view_.receiveNotifications(notifications_);
    setDefaultFont(view_.settings()->selectedLanguage());
    QObject::connect(view_.keyboard(), &Keyboard::exitFullScreenRequested, &shell_,
                     [this] { shell_.toggleFullScreenEmulation(true); });
    QGuiApplication::setWindowIcon(windowIcon(resources_));
    application_.installEventFilter(view_.oneSwitch()); // held keys were judged before
    application_.installEventFilter(&view_.hints());    // sees the switch's keys too: the last is asked first
    heldKeys.setMoving(movingKeys(view_));
}

// Whose settings are played with, as the command line wants them.
UserDefaults& WindowedGame::player() {
    if (!isDoing(CommandLine::Action::play)) {
        return guest_;
    }
    if (commandLine_.resetOptions) {
        Options::reset(defaults_);
    }
    if (commandLine_.oneSwitch) {
        Options(defaults_).set(Option::switchOn, 1);
    }
    return defaults_;
}

// Chance is the system's; of a match that is recorded it is what follows from a seed that the system drew.
MatchServices WindowedGame::matchServices() {
    if (replay_) {
        return {replay_->queue(), replay_->random()};
    }
    if (isDoing(CommandLine::Action::play) && !commandLine_.noRecording) {
        return {queue_, matchRandom_};
    }
    return {queue_, random_};
}

void WindowedGame::record() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const recording::RecordingFolder folder(std::filesystem::path(data.toStdString()) / "vorbel" /
                                            "recordings");
    recorder_.emplace(view_.gameLogic(), matchRandom_,
                      [folder] { return folder.newFile(std::chrono::system_clock::now()); });
    recorder_->drawSeedsFrom(random_);
}

int WindowedGame::run() {
    QQuickWindow* const window = loadedWindow();
    if (window == nullptr) {
        qCritical("the window could not be made; the log says why");
        return EXIT_FAILURE;
    }
    prepareWindow(*window);
    connectWindow(*window);
    if (isDoing(CommandLine::Action::play)) {
        tellOfLastSession();
        if (!commandLine_.noRecording) {
            record();
        }
    }
    view_.appear();
    if (isDoing(CommandLine::Action::demonstrate)) {
        demonstration_.emplace(view_, queue_, *window, commandLine_.screenshotsFolder);
    } else if (isDoing(CommandLine::Action::diagnose)) {
        frameRate_.emplace(view_, *window);
    } else if (replay_) {
        application_.installEventFilter(&replayShow_.emplace(view_, queue_, *replay_));
    }
    const int status = QGuiApplication::exec();
    if (recorder_ && !recorder_->isWritten()) {
        qWarning("not every match could be recorded");
    }
    lastSession().reset();
    return status;
}

QQuickWindow* WindowedGame::loadedWindow() {
    const QSize smallest = smallestWindow(QGuiApplication::primaryScreen()->availableSize());
    engine_.setInitialProperties({{QStringLiteral("view"), QVariant::fromValue(&view_)},
                                  {QStringLiteral("shell"), QVariant::fromValue(&shell_)},
                                  {QStringLiteral("width"), smallest.width()},
                                  {QStringLiteral("height"), smallest.height()},
                                  {QStringLiteral("minimumWidth"), smallest.width()},
                                  {QStringLiteral("minimumHeight"), smallest.height()}});
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Vorbel/qml/window/Main.qml")));
    return qobject_cast<QQuickWindow*>(engine_.rootObjects().value(0));
}

void WindowedGame::connectWindow(QQuickWindow& window) {
    frame_.emplace(window);
    shell_.setWindow(*frame_);
    QObject::connect(&*frame_, &QtWindowFrame::screenChanged, &shell_, [this, &window] {
        window.setMinimumSize(smallestWindow(window.screen()->availableSize()));
        shell_.followScreen();
    });
    view_.oneSwitch()->setWindow(window);
    QObject::connect(&controllerInput_, &ControllerInput::keyPressed, &window,
                     [&window](Qt::Key key) { sendKey(window, key); });
    screenSaver_.emplace(view_.gameLogic(), view_.openMenu(), view_.changes());
}

void WindowedGame::tellOfLastSession() {
    const std::filesystem::path log = Log::fileIn(userStateFolder());
    noteCrashesIn(log);
    if (lastSession().emplace(userStateFolder()).endedBadly()) {
        qWarning("the last game did not come to its end");
        shell_.tellOfBadEnd(QString::fromStdString(log.string()));
    }
}

} // namespace vorbel
