#include "app/session/ScreenSaver.h"

#include "app/match/MatchChanges.h"
#include "app/screen/OpenMenu.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace vorbel {

namespace {

QDBusMessage call(const QString& method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("/org/freedesktop/ScreenSaver"),
        QStringLiteral("org.freedesktop.ScreenSaver"), method);
    message.setArguments(arguments);
    message.setAutoStartService(false); // a desktop that has none needs none
    return message;
}

} // namespace

ScreenSaver::ScreenSaver(const GameLogic& match, const OpenMenu& menu, const MatchChanges& changes)
    : match_(match), menu_(menu) {
    connect(&changes, &MatchChanges::changed, this, &ScreenSaver::follow);
    connect(&menu, &OpenMenu::menuScreenChanged, this, &ScreenSaver::follow);
}

ScreenSaver::~ScreenSaver() {
    letGo();
}

bool ScreenSaver::isWatching(const GameLogic& match, const OpenMenu& menu) {
    const bool throwing = match.phase == GamePhase::throwingJack || match.phase == GamePhase::playing;
    return menu.isHidden() && throwing && (match.aimState == AimState::thrown || match.isCurrentTurnAI());
}

// A desktop that refuses is not asked again before there is something new to watch.
void ScreenSaver::follow() {
    const bool wantedBefore = std::exchange(wanted_, isWatching(match_, menu_));
    if (wanted_ && !wantedBefore && cookie_ == 0 && !asked_) {
        hold();
    } else if (!wanted_) {
        letGo();
    }
}

void ScreenSaver::hold() {
    asked_ = true;
    const auto answer = QDBusConnection::sessionBus().asyncCall(call(
        QStringLiteral("Inhibit"), {QStringLiteral("vorbel"), QStringLiteral("A match is being played")}));
    const auto* watcher = new QDBusPendingCallWatcher(answer, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<uint> reply = *finished;
        asked_ = false;
        cookie_ = reply.isError() ? 0 : reply.value();
        if (!wanted_) {
            letGo();
        }
    });
}

void ScreenSaver::letGo() {
    if (const uint cookie = std::exchange(cookie_, 0); cookie != 0) {
        QDBusConnection::sessionBus().send(call(QStringLiteral("UnInhibit"), {cookie}));
    }
}

} // namespace vorbel
