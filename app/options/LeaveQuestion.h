// Whether the player really wants to leave a match that is not over.
#pragma once

#include "app/screen/MenuScreen.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class GameLogic;
class OpenMenu;
class Options;
class PlayerSettings;

// A screen of the menu, opened by option only, and only while a match is under way in which a human plays.
// Main thread only.
class LeaveQuestion final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(QString question READ question NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString leaveTitle READ leaveTitle NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString cancelTitle READ cancelTitle NOTIFY languageChanged FINAL)

public:
    // All four must outlive it.
    LeaveQuestion(const GameLogic& match, const Options& options, const PlayerSettings& settings,
                  OpenMenu& openMenu);

    [[nodiscard]] QString question() const;
    [[nodiscard]] QString leaveTitle() const;
    [[nodiscard]] QString cancelTitle() const;

    // Whether the window may close now; if not, the question is asked.
    Q_INVOKABLE bool mayClose();
    Q_INVOKABLE void cancel(); // goes back to where it was asked
    Q_INVOKABLE void leave();  // ends the program

signals:
    void languageChanged();

private:
    [[nodiscard]] bool isMatchUnderWay() const;

    const GameLogic& match_;
    const Options& options_;
    const PlayerSettings& settings_;
    OpenMenu& openMenu_;
    MenuScreen askedAt_ = MenuScreen::main;
    bool answered_ = false; // with yes
};

} // namespace vorbel
