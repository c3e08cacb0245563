#include "app/demonstration/Demonstration.h"

#include "app/command_line/Output.h"

#include <QCoreApplication>
#include <QImage>
#include <QQuickWindow>

namespace vorbel {

namespace {

constexpr double startPause = 1.0;  // s, so that the first picture shows the arena as a player first sees it
constexpr double resultShown = 2.0; // s, after each end and after the match

QString nameOf(GamePhase phase, int end) {
    switch (phase) {
    case GamePhase::throwingJack:
        return QStringLiteral("end%1-jack").arg(end);
    case GamePhase::playing:
        return QStringLiteral("end%1-balls").arg(end);
    case GamePhase::endOver:
        return QStringLiteral("end%1-over").arg(end);
    case GamePhase::gameOver:
        break;
    }
    return QStringLiteral("result");
}

} // namespace

Demonstration::Demonstration(ContentView& view, MainQueue& queue, QQuickWindow& window,
                             std::filesystem::path pictures)
    : view_(view), queue_(queue), window_(window), folder_(std::move(pictures)) {
    if (std::error_code error; !folder_.empty()) {
        std::filesystem::create_directories(folder_, error); // saving a picture reports what is wrong
    }
    view_.openMenu().setMenuScreen(MenuScreen::hidden);
    connect(&view_.changes(), &MatchChanges::changed, this, &Demonstration::follow);
    after(startPause, [this] {
        takePicture(QStringLiteral("start"));
        view_.settings()->setRedAIOn(true);
        view_.settings()->setBlueAIOn(true);
    });
}

MemoryDefaults Demonstration::guestDefaults(const UserDefaults& player) {
    MemoryDefaults guest;
    if (const auto language = player.text(languageKey)) {
        guest.setText(languageKey, *language);
    }
    return guest;
}

void Demonstration::follow() {
    GameLogic& match = view_.gameLogic();
    if (std::exchange(phase_, match.phase) != match.phase) {
        after(resultShown / 2,
              [this, phase = phase_, end = match.currentEnd.get()] { takePicture(nameOf(phase, end)); });
        after(resultShown, [this, phase = phase_] { goOn(phase); });
    }
}

void Demonstration::goOn(GamePhase phase) {
    if (phase == GamePhase::endOver) {
        view_.keyboard()->pressAction();
    } else if (phase == GamePhase::gameOver) {
        QCoreApplication::exit(failed_ ? 1 : 0);
    }
}

void Demonstration::takePicture(const QString& stage) {
    if (folder_.empty()) {
        return;
    }
    const QString name = QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QLatin1Char('0')).arg(stage);
    failed_ = !isWritten(window_.grabWindow(), folder_ / name.toStdString()) || failed_;
    window_.update(); // a grabbed picture is not reported as shown, the next one is
}

void Demonstration::after(double seconds, MainQueue::Task task) {
    queue_.postAfter(seconds, lifetime_.whileAlive(std::move(task)));
}

} // namespace vorbel
