#include "tests/scenario/shell/GameWindow.h"

#include "tests/scenario/program/Desktop.h"

#include <QRegularExpression>

namespace vorbel {

namespace {

QString outputOf(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished(10'000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString xdotool(const QStringList& arguments) {
    return outputOf(QStringLiteral("xdotool"), arguments);
}

int numberAfter(const QString& label, const QString& text) {
    const QRegularExpression wanted(label + QStringLiteral(":\\s*(-?\\d+)"));
    return wanted.match(text).captured(1).toInt();
}

} // namespace

WindowManager::WindowManager() {
    process_.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
}

WindowManager::~WindowManager() {
    process_.terminate();
    process_.waitForFinished(5'000);
    // It leaves this behind, by which the next one would seem to be ready before it is.
    outputOf(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("-remove"),
                                       QStringLiteral("_NET_SUPPORTING_WM_CHECK")});
}

bool WindowManager::isReady() const {
    const QStringList question{QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")};
    return waitUntil(
        [&question] { return outputOf(QStringLiteral("xprop"), question).contains(QStringLiteral("0x")); },
        10'000);
}

std::optional<GameWindow> GameWindow::find() {
    if (!Desktop::instance().focusGame()) {
        return std::nullopt;
    }
    // A window manager that has just started takes the window off the screen for a moment.
    QString id;
    const bool isShown = waitUntil(
        [&id] {
            const QString found = xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                           QStringLiteral("--name"), QStringLiteral("^VORBEL$")});
            id = found.trimmed().section(QLatin1Char('\n'), -1);
            return !id.isEmpty();
        },
        10'000);
    return isShown ? std::optional(GameWindow(id)) : std::nullopt;
}

QRect GameWindow::frame() const {
    const QString facts = outputOf(QStringLiteral("xwininfo"), {QStringLiteral("-id"), id_});
    return {numberAfter(QStringLiteral("Absolute upper-left X"), facts),
            numberAfter(QStringLiteral("Absolute upper-left Y"), facts),
            numberAfter(QStringLiteral("Width"), facts), numberAfter(QStringLiteral("Height"), facts)};
}

QString GameWindow::decoration() const {
    return outputOf(QStringLiteral("xprop"),
                    {QStringLiteral("-id"), id_, QStringLiteral("_MOTIF_WM_HINTS"),
                     QStringLiteral("_NET_FRAME_EXTENTS"), QStringLiteral("_NET_WM_STATE")});
}

void GameWindow::place(const QRect& frame) const {
    xdotool({QStringLiteral("windowsize"), id_, QString::number(frame.width()),
             QString::number(frame.height()), QStringLiteral("windowmove"), id_, QString::number(frame.x()),
             QString::number(frame.y())});
}

void movePointer(QPoint place) {
    xdotool({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
}

} // namespace vorbel
