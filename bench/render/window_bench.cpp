#include "bench/render/window_bench.h"

#include "app/window/ContentView.h"
#include "app/window/Display.h"
#include "bench/render/Figures.h"
#include "platform/runloop/QtMainQueue.h"
#include "platform/store/MemoryDefaults.h"
#include "rules/BallModel.h"
#include "rules/CourtGeometry.h"
#include "scene/Ball.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(VorbelPlugin)

namespace vorbel::bench {

namespace {

constexpr int shownFor = 5000; // ms, each part
constexpr int windowParts = 5;
constexpr int places = 13;          // that balls are thrown from
constexpr double againAfter = 2500; // ms: until then all balls roll

constexpr const char* windowText = R"(
import QtQuick
import Vorbel
Window {
    id: window
    required property ContentView view
    visible: true; width: 1200; height: 800; color: "#0d0d14"
    SceneView { objectName: "arena"; anchors.fill: parent; view: window.view }
    Hud { anchors.fill: parent; view: window.view }
}
)";

// Lets the application run; returns how often the window has shown a picture.
int run(QQuickWindow& window, bool asFastAsPossible, const std::function<void()>& meanwhile) {
    int frames = 0;
    QObject context;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &context, [&] {
        ++frames;
        if (asFastAsPossible) {
            window.update();
        }
    });
    if (asFastAsPossible) {
        window.update();
    }
    QTimer often;
    QObject::connect(&often, &QTimer::timeout, &context, meanwhile);
    often.start(250);
    QEventLoop loop;
    QTimer::singleShot(shownFor, &loop, &QEventLoop::quit);
    loop.exec();
    return frames;
}

class Rolling {
public:
    Rolling(Scene& scene, int count) : scene_(scene) {
        for (int i = 0; i < count; ++i) {
            balls_.push_back(
                makeBall(i % 2 == 0 ? BallColor::blue : BallColor::red, {}, PhysicsBody::Type::dynamic));
            balls_.back()->name.clear(); // not balls of the match
            scene_.root->addChild(balls_.back());
        }
        throwAll();
    }
    ~Rolling() {
        for (const Node::Ptr& ball : balls_) {
            scene_.root->removeChild(*ball);
        }
    }
    void keepRolling() {
        if (static_cast<double>(clock_.elapsed()) > againAfter) {
            throwAll();
        }
    }

private:
    void throwAll() {
        clock_.start();
        for (std::size_t n = 0; n < balls_.size(); ++n) {
            const Node::Ptr& ball = balls_[n];
            const int i = static_cast<int>(n);
            const int column = balls_.size() == 1 ? 0 : i - static_cast<int>(balls_.size()) / 2;
            ball->setPosition({0.3 * column, court::restingHeight, -0.5});
            ball->body->velocity = {-0.04 * column, 0, -2.2 - 0.25 * ((5 * i) % places)};
            ball->body->angularVelocity = {ball->body->velocity.z / ball::radius, 0, 0};
        }
    }

    Scene& scene_;
    std::vector<Node::Ptr> balls_;
    QElapsedTimer clock_;
};

struct FrameCost {
    double perSecond = 0;
    double cpu = 0; // ms a frame
};

FrameCost printedCost(const std::string& what, int frames, const Moment& spent) {
    const FrameCost cost{1000 * frames / spent.wall, spent.cpu / std::max(frames, 1)};
    printRow(what.c_str(), cost.perSecond, "frames/s");
    printRow("    processor time a frame", cost.cpu, "ms");
    return cost;
}

FrameCost measureRolling(QQuickWindow& window, Scene& scene, int balls) {
    Rolling rolling(scene, balls);
    const Moment start = Moment::now();
    const int frames = run(window, true, [&] { rolling.keepRolling(); });
    return printedCost("window, balls rolling: " + std::to_string(balls), frames, Moment::now() - start);
}

} // namespace

int measureWindow(const Resources& resources) {
    QtMainQueue queue;
    SeededRandom random(1);
    SilentAudio audio;
    MemoryDefaults defaults;
    ContentView view({queue, random, audio, resources}, defaults);
    QQmlApplicationEngine engine;
    engine.setInitialProperties({{QStringLiteral("view"), QVariant::fromValue(&view)}});
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.loadData(windowText);
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (window == nullptr) {
        return 1;
    }
    view.openMenu().setMenuScreen(MenuScreen::hidden);
    view.appear();
    progress("the window, waiting", 0, 1);
    run(*window, false, [] {});

    Moment start = Moment::now();
    int frames = run(*window, false, [] {});
    Moment spent = Moment::now() - start;
    printRow("waiting for the player: share of one core", 100 * spent.cpu / spent.wall, "%");
    printRow("    pictures meanwhile", frames, "");

    std::vector<std::pair<int, FrameCost>> rolling;
    int part = 0;
    for (const int balls : {0, 1, 3, 13}) {
        progress("the window", part++, windowParts);
        rolling.emplace_back(balls, measureRolling(*window, view.gameLogic().scene, balls));
    }
    std::vector<double> switches;
    for (const AppLanguage language : {AppLanguage::de, AppLanguage::en, AppLanguage::ja, AppLanguage::en}) {
        start = Moment::now();
        view.settings()->setSelectedLanguage(language);
        QEventLoop untilShown;
        QObject::connect(window, &QQuickWindow::frameSwapped, &untilShown, &QEventLoop::quit,
                         Qt::QueuedConnection);
        untilShown.exec();
        switches.push_back((Moment::now() - start).wall);
    }
    printRow("language switch, until it is shown", median(switches), "ms");

    QObject::disconnect(window, nullptr, window->findChild<QObject*>(QStringLiteral("arena")), nullptr);
    progress("the window", part++, windowParts);
    start = Moment::now();
    frames = run(*window, true, [] {});
    const FrameCost score =
        printedCost("window with nothing but the display of the score", frames, Moment::now() - start);
    for (const auto& [balls, cost] : rolling) {
        const std::string rows = "    balls rolling: " + std::to_string(balls);
        printRow((rows + ", processor time a frame, times that").c_str(), cost.cpu / score.cpu, "");
        printRow((rows + ", frames, share of that").c_str(), 100 * cost.perSecond / score.perSecond, "%");
    }
    return 0;
}

} // namespace vorbel::bench
