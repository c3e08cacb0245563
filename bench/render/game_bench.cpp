#include "bench/render/game_bench.h"

#include "app/Application.h"
#include "app/command_line/CommandLine.h"
#include "bench/render/Figures.h"

#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <fstream>
#include <string>

namespace vorbel::bench {

namespace {

constexpr int runs = 5;
constexpr int settling = 2000;     // ms after the first picture
constexpr int shortSettling = 300; // ms: an empty window has nothing more to do
constexpr int waiting = 5000;      // ms

// The most memory that this process has had, MiB. The system's count for children that ended would include
// what the parent had when it made them.
double peakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            return std::stod(line.substr(6)) / 1024;
        }
    }
    return 0;
}

struct Start {
    double at = 0; // Moment::wall when the process was asked for
    bool isEmpty = false;
};

// Watches the program from inside, prints "start complete idle memory" in ms, percent of a core and MiB, and ends it.
class Probe final : public QObject {
public:
    explicit Probe(const Start& start) : QObject(QCoreApplication::instance()), start_(start) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (auto* window = qobject_cast<QQuickWindow*>(object); window && event->type() == QEvent::Show) {
            QCoreApplication::instance()->removeEventFilter(this);
            connect(
                window, &QQuickWindow::frameSwapped, this, [this] { noteFrame(); }, Qt::DirectConnection);
            QTimer::singleShot(start_.isEmpty ? shortSettling : settling, this, &Probe::beginWaiting);
        }
        return false;
    }

private:
    void beginWaiting() {
        const Moment begin = Moment::now();
        QTimer::singleShot(start_.isEmpty ? 0 : waiting, this, [this, begin] {
            const Moment spent = Moment::now() - begin;
            std::printf("%f %f %f %f\n", frames_.front() - start_.at, frames_.back() - start_.at,
                        100 * spent.cpu / std::max(spent.wall, 1e-3), peakMemory());
            QCoreApplication::quit();
        });
    }

    // The first frame shows the menu, the second the arena as well. On the render thread, long before the end.
    void noteFrame() {
        if (frames_.size() < 2) {
            frames_.push_back(Moment::now().wall);
        }
    }

    Start start_;
    std::vector<double> frames_;
};

// The four figures of one run; none when the program did not end well.
std::vector<double> runOnce(const char* argument) {
    const QTemporaryDir settings; // not the player's own
    QProcess game;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
    game.setProcessEnvironment(environment);
    game.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    game.start(QCoreApplication::applicationFilePath(),
               {QString::fromLatin1(argument), QString::number(Moment::now().wall, 'f', 3)});
    std::vector<double> figures;
    if (game.waitForFinished() && game.exitCode() == 0) {
        for (const QByteArray& word : game.readAllStandardOutput().simplified().split(' ')) {
            figures.push_back(word.toDouble());
        }
    }
    return figures;
}

} // namespace

int measureGame() {
    runOnce(gameArgument); // files and the driver's compiled shaders are cached from here on
    runOnce(emptyArgument);
    std::array<std::vector<double>, 4> game; // start, complete, idle, memory
    std::array<std::vector<double>, 4> empty;
    for (int i = 0; i < runs; ++i) {
        progress("the game", i, runs);
        for (auto* figures : {&empty, &game}) { // in turn, so that both meet the same noise
            const std::vector<double> run = runOnce(figures == &game ? gameArgument : emptyArgument);
            if (run.size() != figures->size()) {
                std::fputs("vorbel-bench: the game did not run\n", stderr);
                return 1;
            }
            for (std::size_t k = 0; k < run.size(); ++k) {
                (*figures)[k].push_back(run[k]);
            }
        }
    }
    printRow("the game: start of its process to its first frame", median(game[0]), "ms");
    printRow("    an empty window", median(empty[0]), "ms");
    printRow("    times that", median(game[0]) / median(empty[0]), "");
    printRow("    until the arena is shown as well", median(game[1]), "ms");
    printRow("    waiting for the player: share of one core", median(game[2]), "%");
    printRow("    peak memory", median(game[3]), "MiB");
    printRow("    peak memory of an empty window", median(empty[3]), "MiB");
    return 0;
}

namespace {

// For the plain function that is called once an application is there.
Start& startOfThis() {
    static Start start;
    return start;
}

void watch(const Start& start) {
    startOfThis() = start;
    qAddPreRoutine([] { new Probe(startOfThis()); }); // owned by the application
}

} // namespace

int runGame(char* programName, double startedAt) {
    watch({startedAt, false});
    return runApplication(1, &programName, CommandLine{});
}

int runEmptyWindow(char* programName, double startedAt) {
    watch({startedAt, true});
    int count = 1;
    const QGuiApplication application(count, &programName);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick; Window { visible: true; width: 1200; height: 800 }");
    return QGuiApplication::exec();
}

} // namespace vorbel::bench
