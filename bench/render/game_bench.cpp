#include "bench/render/game_bench.h"

#include "app/Application.h"
#include "app/command_line/CommandLine.h"
#include "bench/render/Figures.h"

#include <QCoreApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <fstream>
#include <string>

namespace vorbel::bench {

namespace {

constexpr int runs = 5;
constexpr int settling = 2000; // ms after the first picture
constexpr int waiting = 5000;  // ms

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

// Watches the game from inside, prints "start idle memory" in ms, percent of a core and MiB, and ends it.
class Probe final : public QObject {
public:
    explicit Probe(double startedAt) : QObject(QCoreApplication::instance()), startedAt_(startedAt) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (auto* window = qobject_cast<QQuickWindow*>(object); window && event->type() == QEvent::Show) {
            QCoreApplication::instance()->removeEventFilter(this);
            connect(
                window, &QQuickWindow::frameSwapped, this, [this] { firstFrame_ = Moment::now(); },
                static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection));
            QTimer::singleShot(settling, this, &Probe::beginWaiting);
        }
        return false;
    }

private:
    void beginWaiting() {
        const Moment begin = Moment::now();
        QTimer::singleShot(waiting, this, [this, begin] {
            const Moment spent = Moment::now() - begin;
            std::printf("%f %f %f\n", firstFrame_.wall - startedAt_, 100 * spent.cpu / spent.wall,
                        peakMemory());
            QCoreApplication::quit();
        });
    }

    double startedAt_;
    Moment firstFrame_;
};

// The three figures of one run; none when the game did not end well.
std::vector<double> runOnce() {
    const QTemporaryDir settings; // not the player's own
    QProcess game;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
    game.setProcessEnvironment(environment);
    game.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    game.start(QCoreApplication::applicationFilePath(),
               {QString::fromLatin1(gameArgument), QString::number(Moment::now().wall, 'f', 3)});
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
    runOnce(); // files and the driver's compiled shaders are cached from here on
    std::vector<double> start;
    std::vector<double> idle;
    std::vector<double> memory;
    for (int i = 0; i < runs; ++i) {
        const std::vector<double> figures = runOnce();
        if (figures.size() != 3) {
            std::fputs("vorbel-bench: the game did not run\n", stderr);
            return 1;
        }
        start.push_back(figures[0]);
        idle.push_back(figures[1]);
        memory.push_back(figures[2]);
    }
    printRow("the game: start of its process to its first frame", median(start), "ms");
    printRow("    waiting for the player: share of one core", median(idle), "%");
    printRow("    peak memory", median(memory), "MiB");
    return 0;
}

int runGame(char* programName, double startedAt) {
    static double started = 0; // for the plain function that is called once the application is there
    started = startedAt;
    qAddPreRoutine([] { new Probe(started); }); // owned by the application
    return runApplication(1, &programName, CommandLine{});
}

} // namespace vorbel::bench
