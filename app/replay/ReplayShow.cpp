#include "app/replay/ReplayShow.h"

#include "app/keys/PressedKey.h"
#include "app/window/ContentView.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <cstdio>
#include <cstdlib>

namespace vorbel {

namespace {

using recording::Replay;

constexpr std::int64_t ticksBeforeThrow = 50; // that are shown

// The program's own: full screen, and whatever the desktop does with its keys.
bool isForWindow(const QKeyEvent& key) {
    return key.matches(QKeySequence::Quit) || key.key() == Qt::Key_F11;
}

} // namespace

ReplayShow::ReplayShow(ContentView& view, MainQueue& queue, Replay& replay)
    : view_(view), queue_(queue), replay_(replay) {
    view_.openMenu().setMenuScreen(MenuScreen::hidden);
    chooseAsRecorded();
    // The settings reach the match a moment later: the match begins behind them.
    queue_.post(lifetime_.whileAlive([this] { begin(); }));
}

// So that the display shows what the match is played with.
void ReplayShow::chooseAsRecorded() {
    PlayerSettings& settings = *view_.settings();
    const MatchStart start = replay_.startOfPlay();
    settings.setRedAIOn(start.redIsAI);
    settings.setBlueAIOn(start.blueIsAI);
    settings.setDifficulty(start.level);
    settings.setSelectedClass(start.sportClass);
    settings.setSelectedCountry(start.playerCountry);
}

void ReplayShow::begin() {
    replay_.begin(view_.gameLogic());
    replay_.skipIdleBeginning(ticksBeforeThrow);
    ticks_ = queue_.repeat(GameLogic::tickPeriod, [this] { tick(); });
}

void ReplayShow::tick() {
    replay_.tick();
    if (replay_.state() != Replay::State::running) {
        ticks_ = Subscription(); // the task stays alive until it returns
        tellTheEnd();
    }
}

void ReplayShow::tellTheEnd() const {
    const GameLogic& match = view_.gameLogic();
    if (const std::string problem = replay_.problem(); !problem.empty()) {
        std::fprintf(stderr, "vorbel: %s\n", problem.c_str());
    } else {
        std::printf("as recorded  score %d:%d\n", match.redScore.get(), match.blueScore.get());
        std::fflush(stdout);
    }
}

void ReplayShow::leave() const {
    QCoreApplication::exit(replay_.problem().empty() ? EXIT_SUCCESS : EXIT_FAILURE);
}

bool ReplayShow::eventFilter(QObject* receiver, QEvent* event) {
    if (!receiver->isWindowType()) {
        return false; // what reaches these went through a window
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (isForWindow(key)) {
            return false;
        }
        event->accept(); // an override: no shortcut, but a key press
        if (event->type() == QEvent::KeyPress && !isModifier(key.key())) {
            leave();
        }
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        leave();
        return true;
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

} // namespace vorbel
