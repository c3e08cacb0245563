// The game in its window: services, match, window and what belongs to them, made and taken apart in order.
#pragma once

#include "app/command_line/CommandLine.h"
#include "app/command_line/Speed.h"
#include "app/controller/ControllerInput.h"
#include "app/demonstration/Demonstration.h"
#include "app/diagnose/FrameRate.h"
#include "app/replay/ReplayShow.h"
#include "app/session/ScreenSaver.h"
#include "app/shell/NotificationCenter.h"
#include "app/shell/QtWindowFrame.h"
#include "app/shell/VorbelApp.h"
#include "app/window/ContentView.h"
#include "app/window/GameVoice.h"
#include "platform/audio/SdlAudio.h"
#include "platform/controllers/SdlControllers.h"
#include "platform/runloop/QtMainQueue.h"
#include "platform/store/MemoryDefaults.h"
#include "platform/store/SettingsDefaults.h"
#include "recording/Recorder.h"

#include <QQmlApplicationEngine>

#include <optional>

class QGuiApplication;
class QQuickWindow;

namespace vorbel {

class HeldKeys;

// Main thread only; one at a time.
class WindowedGame {
public:
    // For play, demonstrate, diagnose or, with the recording, replay. Application, keys and
    // command line must outlive it.
    WindowedGame(QGuiApplication& application, HeldKeys& heldKeys, const CommandLine& commandLine,
                 std::optional<recording::Recording> recorded = {});

    // Shows the window and returns the exit status once it is closed.
    [[nodiscard]] int run();

private:
    [[nodiscard]] bool isDoing(CommandLine::Action action) const { return commandLine_.action == action; }
    [[nodiscard]] UserDefaults& player();
    [[nodiscard]] QQuickWindow* loadedWindow(); // null when it cannot be made; the engine has then said why
    void connectWindow(QQuickWindow& window);
    [[nodiscard]] MatchServices matchServices();
    void record();
    void tellOfLastSession();

    QGuiApplication& application_;
    const CommandLine& commandLine_;

    QtMainQueue queue_{speedFromEnvironment()};
    SystemRandom random_;
    Resources resources_;
    SdlAudio audio_{resources_};
    SdlControllers controllers_;
    SettingsDefaults defaults_{SettingsDefaults::userFolder()};
    MemoryDefaults guest_; // of who leaves the player's career alone

    recording::MatchRandom matchRandom_{{recording::MatchRandom::seedFrom(random_), 0}};
    std::optional<recording::Replay> replay_;

    NotificationCenter notifications_;
    ContentView view_;
    GameVoice voice_;
    VorbelApp shell_;
    ControllerInput controllerInput_;
    QQmlApplicationEngine engine_;
    std::optional<QtWindowFrame> frame_;
    std::optional<ScreenSaver> screenSaver_;
    std::optional<Demonstration> demonstration_;
    std::optional<FrameRate> frameRate_;
    std::optional<ReplayShow> replayShow_;
    std::optional<recording::Recorder> recorder_;
};

} // namespace vorbel
